// Where a standard scroll bar is drawn, when, and what never draws over it.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr int bar_x = 291;  // the middle of a bar from 283 to 299

class ScrollPaintTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    window_ =
        create("pop", {.style = WS_POPUP | WS_VISIBLE | WS_VSCROLL, .place = {100, 100, 200, 300}});
    set(window_, SIF_ALL, 600, 300, 0);
    settle();
  }
  static void set(HWND window, UINT mask, int maximum, UINT page, int position) {
    SCROLLINFO info{sizeof(SCROLLINFO), mask, 0, maximum, page, position, 0};
    SetScrollInfo(window, SB_VERT, &info, TRUE);
  }
  // The part of a column of the bar that is neither track nor arrow: the thumb, from..to.
  std::string thumb_at(int x, int top, int bottom) {
    pump();
    const test::Frame screen = frame();
    const COLORREF track = screen.at(x - 7, top + 20);
    RECT found{};
    if (screen.count_other_than({x, top + 17, x + 1, bottom - 17}, track, &found) == 0)
      found.top = found.bottom = top;
    return std::to_string(found.top - top) + ".." + std::to_string(found.bottom - top);
  }
  std::string thumb() { return thumb_at(bar_x, 100, 400); }
  bool bar_is_whole() {
    pump();
    const test::Frame screen = frame();
    const auto of_client = [](COLORREF color) { return color == red || color == white; };
    return screen.count({283, 100, 284, 400}, of_client) == 0 &&
           screen.count({299, 100, 300, 400}, of_client) == 0;
  }
  HWND window_ = nullptr;
};

TEST_F(ScrollPaintTest, StandsRightOfTheClientOverTheWholeHeight) {
  EXPECT_EQ(pixel(282, 250), white);
  EXPECT_TRUE(bar_is_whole());
  EXPECT_NE(pixel(300, 250), pixel(299, 250));
}

TEST_F(ScrollPaintTest, HasAnArrowAtEachEnd) {
  const COLORREF track = pixel(284, 250);
  EXPECT_NE(pixel(bar_x, 108), track);
  EXPECT_NE(pixel(bar_x, 391), track);
  EXPECT_EQ(pixel(bar_x, 101), track);
}

// A pixel of track is left at each end of the thumb.
TEST_F(ScrollPaintTest, ThumbIsWhereThePositionSays) {
  EXPECT_EQ(thumb(), "18..149");
  set(window_, SIF_POS, 0, 0, 301);
  EXPECT_EQ(thumb(), "151..282");
  set(window_, SIF_PAGE, 0, 1, 0);
  EXPECT_EQ(thumb(), "143..158");
}

TEST_F(ScrollPaintTest, WithoutRedrawItWaits) {
  SetScrollPos(window_, SB_VERT, 301, FALSE);
  EXPECT_EQ(thumb(), "18..149");
  SetScrollPos(window_, SB_VERT, 301, TRUE);
  EXPECT_EQ(thumb(), "151..282");
}

TEST_F(ScrollPaintTest, WithWmSetredrawOffItWaits) {
  SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
  SetScrollPos(window_, SB_VERT, 301, TRUE);
  EXPECT_EQ(thumb(), "18..149");
  SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
  EXPECT_EQ(thumb(), "151..282");
}

TEST_F(ScrollPaintTest, UpdateWindowDrawsItAtOnce) {
  const COLORREF track = pixel(bar_x, 350);
  SetScrollPos(window_, SB_VERT, 301, TRUE);
  UpdateWindow(window_);
  EXPECT_NE(pixel(bar_x, 350), track);
}

TEST_F(ScrollPaintTest, NewPositionPaintsNothingButTheBar) {
  SetScrollPos(window_, SB_VERT, 50, TRUE);
  EXPECT_EQ(text_of(update_rect(window_)), "0,0,0,0");
  pump();
  EXPECT_TRUE(log_is(""));
}

TEST_F(ScrollPaintTest, DraggedThumbMovesAndGoesBackWhenLetGo) {
  std::vector<std::string> seen;
  std::vector<COLORREF> colors;
  recorder().before_default("pop", WM_TIMER, [&] {
    seen.push_back(thumb());
    colors.push_back(pixel(bar_x, 350));
    KillTimer(window_, 1);
    send_mouse(MOUSEEVENTF_LEFTUP);
  });
  SetTimer(window_, 1, 100, nullptr);
  SetCursorPos(bar_x, 160);
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  SetCursorPos(bar_x, 293);
  pump();
  EXPECT_EQ(seen, (std::vector<std::string>{"151..282"}));
  EXPECT_EQ(thumb(), "18..149") << "the program has not set the position";
  EXPECT_NE(colors.at(0), pixel(bar_x, 200)) << "darker while held";
}

TEST_F(ScrollPaintTest, PressedArrowIsShownPressed) {
  const COLORREF before = pixel(284, 390);
  COLORREF held = before;
  recorder().before_default("pop", WM_TIMER, [&] {
    held = pixel(284, 390);
    send_mouse(MOUSEEVENTF_LEFTUP);
  });
  SetTimer(window_, 1, 100, nullptr);
  SetCursorPos(bar_x, 390);
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  pump();
  EXPECT_NE(held, before);
  EXPECT_EQ(pixel(284, 390), before);
}

TEST_F(ScrollPaintTest, GreyedBarHasNoThumbAndPalerArrows) {
  const COLORREF arrow = pixel(bar_x, 108);
  set(window_, SIF_PAGE | SIF_DISABLENOSCROLL, 0, 601, 0);
  EXPECT_EQ(thumb(), "0..0");
  EXPECT_GT(pixel(bar_x, 108) & 0xFF, arrow & 0xFF);
}

TEST_F(ScrollPaintTest, HiddenBarLeavesWhiteClient) {
  ShowScrollBar(window_, SB_VERT, FALSE);
  pump();
  EXPECT_EQ(pixel(bar_x, 250), white);
  EXPECT_EQ(pixel(bar_x, 108), white);
}

TEST_F(ScrollPaintTest, ClientDrawingNeverReachesIt) {
  const std::string before = thumb();
  paint_patches("pop", {{{0, 0, 1000, 1000}, red}});
  InvalidateRect(window_, nullptr, TRUE);
  EXPECT_TRUE(bar_is_whole());
  const HDC dc = GetDC(window_);
  fill(dc, {0, 0, 1000, 1000}, red);
  ReleaseDC(window_, dc);
  EXPECT_TRUE(bar_is_whole());
  EXPECT_EQ(thumb(), before);
  EXPECT_EQ(pixel(282, 250), red);
}

TEST_F(ScrollPaintTest, FollowsEverySize) {
  MoveWindow(window_, 100, 100, 250, 200, TRUE);
  EXPECT_EQ(thumb_at(341, 100, 300).substr(0, 3), "18.");
  EXPECT_EQ(pixel(bar_x, 250), white) << "where the bar was";
  MoveWindow(window_, 100, 100, 150, 300, TRUE);
  EXPECT_EQ(thumb_at(241, 100, 400), "18..149");
}

TEST_F(ScrollPaintTest, ComesBackWithItsWindow) {
  ShowWindow(window_, SW_HIDE);
  pump();
  SetScrollPos(window_, SB_VERT, 301, TRUE);
  ShowWindow(window_, SW_SHOW);
  EXPECT_EQ(thumb(), "151..282");
}

TEST_F(ScrollPaintTest, LayeredWindowHasItToo) {
  SetWindowLongW(window_, GWL_EXSTYLE, static_cast<LONG>(WS_EX_LAYERED));
  SetLayeredWindowAttributes(window_, 0, 255, LWA_ALPHA);
  InvalidateRect(window_, nullptr, TRUE);
  EXPECT_EQ(thumb(), "18..149");
}

// A child with a bar in a parent that paints red over everything.
class ChildScrollPaintTest : public ScrollPaintTest,
                             public testing::WithParamInterface<std::tuple<DWORD, DWORD>> {
 protected:
  void SetUp() override {
    ScrollPaintTest::SetUp();
    const auto [parent_style, child_style] = GetParam();
    parent_ = create(
        "parent", {.style = WS_POPUP | WS_VISIBLE | parent_style, .place = {400, 100, 300, 350}});
    paint_patches("parent", {{{0, 0, 300, 350}, red}});
    child_ = settled_child("child", parent_, 10, 20, 200, 300, WS_VSCROLL | child_style);
    set(child_, SIF_ALL, 600, 300, 0);
    settle();
  }
  // Its bar: x 593 to 609, y 120 to 419.
  std::string childs_thumb() { return thumb_at(601, 120, 420); }
  HWND parent_ = nullptr;
  HWND child_ = nullptr;
};

TEST_P(ChildScrollPaintTest, ParentPaintsBelowIt) {
  EXPECT_EQ(childs_thumb(), "18..149");
  InvalidateRect(parent_, nullptr, TRUE);
  EXPECT_EQ(childs_thumb(), "18..149");
  const RECT only_the_bar{195, 30, 205, 200};
  InvalidateRect(parent_, &only_the_bar, TRUE);
  EXPECT_EQ(childs_thumb(), "18..149");
  UpdateWindow(parent_);
  EXPECT_EQ(pixel(610, 200), red);
}

TEST_P(ChildScrollPaintTest, MovesWithTheChild) {
  MoveWindow(child_, 40, 40, 200, 300, TRUE);
  EXPECT_EQ(thumb_at(631, 140, 440), "18..149");
  EXPECT_EQ(pixel(601, 130), red);
}

TEST_P(ChildScrollPaintTest, IsClippedByTheParent) {
  MoveWindow(child_, 108, 20, 200, 300, TRUE);  // the bar from 291 to 307 of 300
  pump();
  EXPECT_NE(pixel(699, 200), red);
  EXPECT_NE(pixel(699, 200), pixel(700, 200));
  MoveWindow(child_, 10, 20, 200, 300, TRUE);
  EXPECT_EQ(childs_thumb(), "18..149");
  EXPECT_EQ(pixel(608, 300), pixel(594, 300)) << "what was outside is drawn";
}

TEST_P(ChildScrollPaintTest, FollowsTheChildsSize) {
  MoveWindow(child_, 10, 20, 150, 300, TRUE);
  EXPECT_EQ(thumb_at(551, 120, 420), "18..149") << "narrower";
  EXPECT_EQ(pixel(601, 200), red);
  MoveWindow(child_, 10, 20, 150, 167, TRUE);
  EXPECT_EQ(thumb_at(551, 120, 287), "18..82") << "lower";
  MoveWindow(child_, 10, 20, 200, 300, TRUE);
  EXPECT_EQ(childs_thumb(), "18..149") << "larger";
  EXPECT_EQ(pixel(551, 200), white);
}

TEST_P(ChildScrollPaintTest, ComesAndGoes) {
  ShowScrollBar(child_, SB_VERT, FALSE);
  pump();
  EXPECT_EQ(pixel(601, 200), white);
  ShowScrollBar(child_, SB_VERT, TRUE);
  EXPECT_EQ(childs_thumb(), "18..149");
}

TEST_P(ChildScrollPaintTest, IsUncoveredByASibling) {
  const HWND above = settled_child("above", parent_, 150, 50, 100, 100);
  paint_patches("above", {{{0, 0, 100, 100}, red}});
  SetWindowPos(above, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  pump();
  EXPECT_EQ(pixel(601, 200), red);
  DestroyWindow(above);
  EXPECT_EQ(childs_thumb(), "18..149");
  EXPECT_NE(pixel(601, 200), red);
  EXPECT_EQ(pixel(594, 200), pixel(594, 400)) << "the track beside the thumb";
  EXPECT_EQ(pixel(580, 200), white) << "the client area";
}

INSTANTIATE_TEST_SUITE_P(, ChildScrollPaintTest,
                         testing::Combine(testing::Values(0, WS_CLIPCHILDREN),
                                          testing::Values(0, WS_CLIPSIBLINGS)));

TEST_F(ScrollPaintTest, SiblingAboveIsNotDrawnOver) {
  const HWND parent = settled_popup("parent", 400, 100, 300, 350);
  const HWND above = settled_child("above", parent, 150, 50, 100, 100, WS_CLIPSIBLINGS);
  const HWND below = settled_child("below", parent, 10, 20, 200, 300, WS_VSCROLL | WS_CLIPSIBLINGS);
  pump();
  set(below, SIF_ALL, 600, 300, 100);
  SetScrollPos(below, SB_VERT, 301, TRUE);
  pump();
  EXPECT_NE(above, nullptr);
  EXPECT_EQ(pixel(601, 200), white);
  EXPECT_NE(pixel(601, 370), white);
}

}  // namespace
}  // namespace corvane::conformance
