// The client area that frames leave, and what the program is told of their sizes.
#include "tests/platform/conformance/support/picture.h"
#include "tests/platform/conformance/support/window_test.h"
#include "tests/support/own_system.h"

namespace corvane::conformance {
namespace {

using test::is_rect;

class FrameMeasureTest : public WindowTest {
 protected:
  HWND framed(const std::string& name, DWORD style, DWORD ex_style = 0) {
    const HWND parent = (style & WS_CHILD) != 0 ? popup_ : nullptr;
    return create(
        name,
        {.parent = parent, .style = style, .place = {40, 50, 400, 300}, .ex_style = ex_style});
  }
  // Left, top, right and bottom of the window beyond its client area.
  static RECT margins(HWND window) {
    RECT client = client_rect(window);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&client), 2);
    const RECT outer = window_rect(window);
    return {client.left - outer.left, client.top - outer.top, outer.right - client.right,
            outer.bottom - client.bottom};
  }
  static DWORD style_of(HWND window) {
    return static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
  }
  static DWORD ex_style_of(HWND window) {
    return static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE));
  }

  const HWND popup_ = settled_popup("pop", 100, 100, 500, 400);
};

TEST_F(FrameMeasureTest, FrameIsMeasuredAsAdjustWindowRectSays) {
  const auto hexadecimal = [](const std::string& field) {
    return static_cast<DWORD>(std::stoul(field, nullptr, 16));
  };
  for (const auto& row : test::golden_rows("tests/platform/conformance/frames/frame_margins.txt")) {
    const DWORD ex_style = hexadecimal(row.at(1));
    const RECT expected = test::rect_of(row.at(2));
    const HWND window = framed("framed", hexadecimal(row.at(0)), ex_style);
    EXPECT_THAT(margins(window), test::same_rect(expected)) << row.at(4);
    EXPECT_EQ(ex_style_of(window), hexadecimal(row.at(3))) << row.at(4);
    RECT around{};
    EXPECT_NE(AdjustWindowRectEx(&around, style_of(window), FALSE, ex_style), 0);
    EXPECT_THAT(around, is_rect(-expected.left, -expected.top, expected.right, expected.bottom));
    DestroyWindow(window);
  }
  EXPECT_EQ(AdjustWindowRect(nullptr, WS_CAPTION, FALSE), FALSE);
  const std::pair<int, int> metrics[] = {
      {SM_CXSIZEFRAME, 4}, {SM_CYFIXEDFRAME, 3}, {SM_CXBORDER, 1},     {SM_CYEDGE, 2},
      {SM_CYCAPTION, 19},  {SM_CYSMCAPTION, 16}, {SM_CXMINTRACK, 112}, {SM_CYMIN, 27}};
  for (const auto& [index, value] : metrics) EXPECT_EQ(GetSystemMetrics(index), value) << index;
}

TEST_F(FrameMeasureTest, ChangedStyleIsMeasuredWhenTheFrameIsSaidToHaveChanged) {
  const HWND window = framed("framed", WS_POPUP | WS_VISIBLE);
  paint_patches("framed", {{{0, 0, 5, 5}, kRed}});
  recorder().ignore({WM_STYLECHANGING, WM_STYLECHANGED, WM_SETCURSOR, WM_NCHITTEST});
  const auto restyle = [&](DWORD style) {
    SetWindowLongW(window, GWL_STYLE, static_cast<LONG>(style | WS_VISIBLE));
    EXPECT_EQ((ex_style_of(window) & WS_EX_WINDOWEDGE) != 0, (style & WS_THICKFRAME) != 0);
    SetWindowPos(window, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  };
  settle();
  restyle(WS_OVERLAPPEDWINDOW);
  pump_step("with a frame");
  EXPECT_EQ(pixel(44, 73), kRed);
  EXPECT_NE(pixel(43, 72), kRed);
  restyle(WS_POPUP);
  pump_step("without");
  EXPECT_EQ(pixel(40, 50), kRed);
  EXPECT_EQ(pixel(47, 76), kWhite) << "the old place of the client's pixels";
}

TEST_F(FrameMeasureTest, ScrollBarsAndChildrenLieWithinTheFrame) {
  const HWND window =
      framed("framed", WS_CHILD | WS_CAPTION | WS_VISIBLE | WS_VSCROLL, WS_EX_CLIENTEDGE);
  const HWND child =
      create("child", {.parent = window, .style = WS_CHILD | WS_VISIBLE, .place = {7, 8, 30, 30}});
  pump();
  EXPECT_EQ(text_of(margins(window)), "5,24,22,5");
  EXPECT_THAT(window_rect(child), is_rect(152, 182, 182, 212));
  EXPECT_EQ(SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(518, 300)), HTVSCROLL);
  EXPECT_EQ(SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(535, 300)), HTBORDER);
  EXPECT_EQ(pressed_at(152, 182), "child");
  EXPECT_EQ(pressed_at(151, 182), "framed");
  HDC dc = GetWindowDC(window);
  fill(dc, {0, 0, 1, 1}, kRed);
  fill(dc, {12, 32, 13, 33}, kBlue);
  ReleaseDC(window, dc);
  EXPECT_EQ(pixel(140, 150), kRed);
  EXPECT_EQ(pixel(152, 182), kBlue) << "over the child, which is not clipped out";
}

TEST_F(FrameMeasureTest, SuppliedContentCoversTheFrameAndTheClientKeepsItsPlace) {
  const HWND window = framed("layer", WS_POPUP | WS_CAPTION | WS_VISIBLE, WS_EX_LAYERED);
  const Picture picture(90, 60, 0xFF00FF00);
  POINT position{300, 300};
  POINT source{0, 0};
  SIZE size = picture.size();
  BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
  UpdateLayeredWindow(window, nullptr, &position, &size, picture.dc(), &source, 0, &blend,
                      ULW_ALPHA);
  pump();
  EXPECT_EQ(pixel(300, 300), kGreen);
  EXPECT_EQ(text_of(margins(window)), "3,22,3,3");
}

// The desktop already shows a caption with the program's name around it.
TEST_F(FrameMeasureTest, WindowThatFillsTheScreenHasNoFrameInsideAFramedNativeWindow) {
  own().display.set_native_frame(true);
  const HWND main =
      create("main", {.style = WS_OVERLAPPEDWINDOW | WS_VISIBLE, .place = {0, 0, 1280, 800}});
  pump();
  EXPECT_EQ(text_of(margins(main)), "0,0,0,0");
  own().display.resize({900, 700});
  pump();
  EXPECT_THAT(client_rect(main), is_rect(0, 0, 900, 700));
  ShowWindow(main, SW_MAXIMIZE);
  EXPECT_THAT(window_rect(main), is_rect(0, 0, 900, 700));
  ShowWindow(main, SW_RESTORE);
  SetWindowPos(main, nullptr, 5, 5, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_EQ(text_of(margins(main)), "4,23,4,4") << "as it does not fill it";
  MoveWindow(main, 0, 0, 500, 400, TRUE);
  EXPECT_EQ(text_of(margins(main)), "4,23,4,4");
}

}  // namespace
}  // namespace corvane::conformance
