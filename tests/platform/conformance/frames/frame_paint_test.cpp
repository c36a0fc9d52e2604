// What frames look like, and when they are drawn.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class FramePaintTest : public WindowTest {
 protected:
  static constexpr RECT kText{104, 104, 410, 123};  // beside the boxes
  int text_pixels() {
    return frame().count(kText, [](COLORREF each) { return each == kBlack; });
  }

  const HWND window_ =
      create("framed", {.style = WS_OVERLAPPEDWINDOW | WS_VISIBLE, .place = {100, 100, 400, 300}});
};

TEST_F(FramePaintTest, CaptionTellsTheTextAndWhetherTheWindowIsActive) {
  settle();
  const COLORREF active = GetSysColor(COLOR_ACTIVECAPTION);
  EXPECT_EQ(pixel(300, 106), active);
  EXPECT_EQ(pixel(102, 300), active) << "the border is one with it";
  EXPECT_EQ(pixel(100, 300), GetSysColor(COLOR_WINDOWFRAME));
  EXPECT_EQ(pixel(104, 123), kWhite) << "the client area";
  EXPECT_EQ(pixel(495, 395), kWhite);
  EXPECT_EQ(pixel(496, 396), active);
  recorder().only({WM_NCACTIVATE, WM_NCPAINT, WM_SETTEXT, WM_PAINT});
  SetWindowTextW(window_, L"a");
  const int one = text_pixels();
  SetWindowTextW(window_, L"abcdefgh");
  EXPECT_GT(text_pixels(), 4 * one);
  SetWindowTextW(window_, std::wstring(500, L'm').c_str());
  EXPECT_EQ(pixel(408, 110), active) << "a long one ends before the boxes";
  pump_step("text");
  settled_popup("other", 600, 100, 50, 50);
  EXPECT_EQ(pixel(415, 110), GetSysColor(COLOR_INACTIVECAPTION));
  SetActiveWindow(window_);
  EXPECT_EQ(pixel(415, 110), active);
  forget();
}

TEST_F(FramePaintTest, EdgesAndLines) {
  struct Edge {
    DWORD style;
    DWORD ex_style;
    std::vector<COLORREF> from_outside;
  };
  const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
  const COLORREF line = GetSysColor(COLOR_WINDOWFRAME);
  const COLORREF face = GetSysColor(COLOR_BTNFACE);
  for (const Edge& each :
       {Edge{0, WS_EX_CLIENTEDGE, {shadow, kWhite, kRed}}, Edge{WS_BORDER, 0, {line, kRed}},
        Edge{0, WS_EX_STATICEDGE, {shadow, kRed}}, Edge{WS_DLGFRAME, 0, {line, face, face, kRed}},
        Edge{WS_BORDER, WS_EX_CLIENTEDGE, {line, shadow, kWhite, kRed}}}) {
    const HWND child = create("child", {.parent = window_,
                                        .style = WS_CHILD | WS_VISIBLE | each.style,
                                        .place = {10, 20, 60, 40},
                                        .ex_style = each.ex_style,
                                        .brush = CreateSolidBrush(kRed)});
    pump();
    int depth = 0;
    for (const COLORREF color : each.from_outside) {
      for (const POINT point : {POINT{114 + depth, 160}, POINT{140, 143 + depth},
                                POINT{173 - depth, 160}, POINT{140, 182 - depth}}) {
        EXPECT_EQ(pixel(point), color) << each.style << ' ' << text_of(point);
      }
      ++depth;
    }
    DestroyWindow(child);
  }
  forget();
}

TEST_F(FramePaintTest, FrameIsDrawnAgainWhereItComesToLight) {
  const HWND child = settled_child("child", window_, 50, 50, 200, 100, WS_CAPTION);
  const COLORREF caption = GetSysColor(COLOR_INACTIVECAPTION);
  const auto shown = [&] { return pixel(250, 180) == caption && pixel(155, 270) == caption; };
  EXPECT_TRUE(shown());
  recorder().only({WM_NCPAINT, WM_PAINT});
  recorder().only_windows({"child"});
  draw(window_, {0, 0, 390, 270}, kRed);
  EXPECT_FALSE(shown());
  InvalidateRect(window_, nullptr, TRUE);
  pump_step("its parent is painted");
  EXPECT_TRUE(shown());
  RECT part{60, 90, 80, 100};
  InvalidateRect(window_, &part, TRUE);
  pump_step("only something within it is");
  RedrawWindow(child, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
  pump_step("asked for");
  MoveWindow(child, 50, 50, 200, 90, TRUE);
  pump_step("sized");
  EXPECT_EQ(pixel(155, 260), caption);
  MoveWindow(child, 60, 50, 200, 90, TRUE);
  pump_step("moved with its pixels");
  EXPECT_EQ(pixel(262, 180), caption);
}

// Otherwise a program that draws its own frame could never be painted.
TEST_F(FramePaintTest, OwnDrawingMayAskForMoreWithoutEnd) {
  int drawn = 0;
  recorder().on("framed", WM_NCPAINT, [&](const Message& sent) -> std::optional<LRESULT> {
    ++drawn;
    RedrawWindow(sent.window, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
    return 0;
  });
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
  MSG message{};
  for (int turn = 0; turn < 3; ++turn) PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);
  EXPECT_GE(drawn, 3);
  EXPECT_LT(drawn, 30);
  forget();
}

}  // namespace
}  // namespace corvane::conformance
