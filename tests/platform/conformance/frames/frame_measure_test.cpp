// The client area that frames leave, and what the program is told of their sizes.
#include "tests/platform/conformance/support/picture.h"
#include "tests/platform/conformance/support/window_test.h"
#include "tests/support/own_system.h"

namespace corvane::conformance {
namespace {

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
  static RECT even(int side, int caption = 0) { return {side, side + caption, side, side}; }
  static DWORD ex_style_of(HWND window) {
    return static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE));
  }

  const HWND popup_ = settled_popup("pop", 100, 100, 500, 400);
};

struct Measured {
  DWORD style;
  DWORD ex_style;
  RECT margins;
  DWORD ex_style_got;
};

TEST_F(FrameMeasureTest, FrameIsMeasuredAsTheMetricsAndAdjustWindowRectSay) {
  const int sizing = GetSystemMetrics(SM_CXSIZEFRAME);
  const int fixed = GetSystemMetrics(SM_CYFIXEDFRAME);
  const int line = GetSystemMetrics(SM_CXBORDER);
  const int edge = GetSystemMetrics(SM_CYEDGE);
  const int caption = GetSystemMetrics(SM_CYCAPTION);
  const int small = GetSystemMetrics(SM_CYSMCAPTION);
  for (const Measured& each :
       std::vector<Measured>{{WS_OVERLAPPEDWINDOW, 0, {4, 23, 4, 4}, WS_EX_WINDOWEDGE},
                             {WS_OVERLAPPEDWINDOW, 0, even(sizing, caption), WS_EX_WINDOWEDGE},
                             {WS_CHILD | WS_CAPTION, 0, even(fixed, caption), WS_EX_WINDOWEDGE},
                             {WS_POPUP | WS_CAPTION, WS_EX_TOOLWINDOW, even(fixed, small), 0x180},
                             {WS_POPUP | WS_THICKFRAME, 0, even(edge + line), WS_EX_WINDOWEDGE},
                             {WS_POPUP | WS_DLGFRAME, 0, even(fixed), WS_EX_WINDOWEDGE},
                             {WS_CHILD, WS_EX_DLGMODALFRAME, even(fixed), 0x101},
                             {WS_CHILD | WS_BORDER, 0, even(line), 0},
                             {WS_CHILD | WS_BORDER, WS_EX_CLIENTEDGE, even(line + edge), 0x200},
                             {WS_CHILD, WS_EX_STATICEDGE, even(line), 0x20000},
                             {WS_CHILD, WS_EX_CLIENTEDGE, even(edge), 0x200},
                             {WS_POPUP, WS_EX_WINDOWEDGE, even(0), 0}}) {
    const HWND window = framed("framed", each.style, each.ex_style);
    EXPECT_EQ(text_of(margins(window)), text_of(each.margins)) << std::hex << each.style;
    EXPECT_EQ(ex_style_of(window), each.ex_style_got) << std::hex << each.style;
    RECT around{10, 10, 20, 20};
    EXPECT_NE(AdjustWindowRectEx(&around, each.style, FALSE, each.ex_style), 0);
    EXPECT_EQ(
        text_of(RECT{10 - around.left, 10 - around.top, around.right - 20, around.bottom - 20}),
        text_of(each.margins));
    DestroyWindow(window);
  }
  EXPECT_EQ(AdjustWindowRect(nullptr, WS_CAPTION, FALSE), FALSE);
}

TEST_F(FrameMeasureTest, WindowThatIsNeitherPopupNorChildHasACaption) {
  EXPECT_EQ(text_of(margins(framed("plain", WS_OVERLAPPED))), "3,22,3,3");
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
  EXPECT_THAT(window_rect(child), test::is_rect(152, 182, 182, 212));
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
  EXPECT_THAT(client_rect(main), test::is_rect(0, 0, 900, 700));
  ShowWindow(main, SW_MAXIMIZE);
  EXPECT_THAT(window_rect(main), test::is_rect(0, 0, 900, 700));
  ShowWindow(main, SW_RESTORE);
  SetWindowPos(main, nullptr, 5, 5, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_EQ(text_of(margins(main)), "4,23,4,4") << "as it does not fill it";
  MoveWindow(main, 0, 0, 500, 400, TRUE);
  EXPECT_EQ(text_of(margins(main)), "4,23,4,4");
}

}  // namespace
}  // namespace corvane::conformance
