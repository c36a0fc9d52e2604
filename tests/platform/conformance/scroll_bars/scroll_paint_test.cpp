// Where a standard scroll bar is drawn, when, and what never draws over it.
#include "tests/platform/conformance/support/scroll_test.h"

namespace corvane::conformance {
namespace {

constexpr int kBarX = 291;  // the middle of a bar from 283 to 299

class ScrollPaintTest : public ScrollTest {
 protected:
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
  std::string thumb() { return thumb_at(kBarX, 100, 400); }
  bool bar_is_whole() {
    pump();
    const test::Frame screen = frame();
    const auto of_client = [](COLORREF color) { return color == kRed || color == kWhite; };
    return screen.count({283, 100, 284, 400}, of_client) == 0 &&
           screen.count({299, 100, 300, 400}, of_client) == 0;
  }
};

TEST_F(ScrollPaintTest, StandsRightOfTheClientWithAnArrowAtEachEnd) {
  EXPECT_EQ(pixel(282, 250), kWhite);
  EXPECT_TRUE(bar_is_whole());
  EXPECT_NE(pixel(300, 250), pixel(299, 250));
  // The arrow's rows, from its point: a pixel wider at each side per row.
  const test::Frame screen = frame();
  const COLORREF track = screen.at(284, 250);
  for (const bool up : {true, false}) {
    const RECT button = up ? RECT{283, 100, 300, 117} : RECT{283, 383, 300, 400};
    RECT glyph{};
    EXPECT_EQ(screen.count_other_than(button, track, &glyph), 16) << up;
    EXPECT_EQ(text_of(glyph), up ? "288,106,295,110" : "288,389,295,393");
    for (int row = 0; row < 4; ++row) {
      const int y = up ? glyph.top + row : glyph.bottom - 1 - row;
      EXPECT_EQ(screen.count_other_than({283, y, 300, y + 1}, track), 2 * row + 1) << up << row;
    }
  }
}

// A pixel of track is left at each end of the thumb.
TEST_F(ScrollPaintTest, ThumbIsWhereThePositionSays) {
  EXPECT_EQ(thumb(), "18..149");
  set(SIF_POS, 0, 0, 301);
  EXPECT_EQ(thumb(), "151..282");
  set(SIF_PAGE, 0, 1, 0);
  EXPECT_EQ(thumb(), "143..158");
}

TEST_F(ScrollPaintTest, ChangeWaitsForTheRedraw) {
  SetScrollPos(window_, SB_VERT, 301, FALSE);
  EXPECT_EQ(thumb(), "18..149");
  SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
  SetScrollPos(window_, SB_VERT, 301, TRUE);
  EXPECT_EQ(thumb(), "18..149");
  SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
  EXPECT_EQ(thumb(), "151..282");
  ShowWindow(window_, SW_HIDE);
  pump();
  SetScrollPos(window_, SB_VERT, 0, TRUE);
  ShowWindow(window_, SW_SHOW);
  EXPECT_EQ(thumb(), "18..149");
}

TEST_F(ScrollPaintTest, NewPositionPaintsNothingButTheBar) {
  SetScrollPos(window_, SB_VERT, 50, TRUE);
  step("set");
  const COLORREF track = pixel(kBarX, 350);
  SetScrollPos(window_, SB_VERT, 301, TRUE);
  UpdateWindow(window_);
  EXPECT_NE(pixel(kBarX, 350), track) << "UpdateWindow draws it at once";
  pump();
  step("drawn");
}

TEST_F(ScrollPaintTest, HeldPartsAreDarkerAndADraggedThumbGoesBack) {
  std::string held_thumb;
  COLORREF held = 0;
  int y = 350;
  recorder().before_default("pop", WM_TIMER, [&] {
    held_thumb = thumb();
    held = pixel(y == 350 ? kBarX : 284, y);
    KillTimer(window_, 1);
    send_mouse(MOUSEEVENTF_LEFTUP);
  });
  const auto drag_held = [&](int from, int to) {
    SetTimer(window_, 1, 100, nullptr);
    SetCursorPos(kBarX, from);
    send_mouse(MOUSEEVENTF_LEFTDOWN);
    SetCursorPos(kBarX, to);
    pump();
  };
  drag_held(160, 293);
  EXPECT_EQ(held_thumb, "151..282");
  EXPECT_EQ(thumb(), "18..149") << "the program has not set the position";
  EXPECT_LT(GetRValue(held), GetRValue(pixel(kBarX, 200)));
  y = 390;
  const COLORREF before = pixel(284, y);
  drag_held(y, y);
  EXPECT_LT(GetRValue(held), GetRValue(before));
  EXPECT_EQ(pixel(284, y), before);
}

TEST_F(ScrollPaintTest, GreyedBarHasNoThumbAndPalerArrows) {
  const COLORREF arrow = pixel(kBarX, 108);
  set(SIF_PAGE | SIF_DISABLENOSCROLL, 0, 601, 0);
  EXPECT_EQ(thumb(), "0..0");
  EXPECT_GT(pixel(kBarX, 108) & 0xFF, arrow & 0xFF);
  ShowScrollBar(window_, SB_VERT, FALSE);
  pump();
  EXPECT_EQ(pixel(kBarX, 250), kWhite) << "a hidden bar leaves white client";
  EXPECT_EQ(pixel(kBarX, 108), kWhite);
}

TEST_F(ScrollPaintTest, ClientDrawingNeverReachesIt) {
  const std::string before = thumb();
  paint_patches("pop", {{{0, 0, 1000, 1000}, kRed}});
  InvalidateRect(window_, nullptr, TRUE);
  EXPECT_TRUE(bar_is_whole());
  draw(window_, {0, 0, 1000, 1000}, kRed);
  EXPECT_TRUE(bar_is_whole());
  EXPECT_EQ(thumb(), before);
  EXPECT_EQ(pixel(282, 250), kRed);
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
  ChildScrollPaintTest() {
    paint_patches("parent", {{{0, 0, 300, 350}, kRed}});
    InvalidateRect(parent_, nullptr, TRUE);
    set_bar(child_, SB_VERT, SIF_ALL, 600, 300, 0);
    settle();
  }
  // Its bar: x 593 to 609, y 120 to 419.
  std::string childs_thumb() { return thumb_at(601, 120, 420); }
  const HWND parent_ = create("parent", {.style = WS_POPUP | WS_VISIBLE | std::get<0>(GetParam()),
                                         .place = {400, 100, 300, 350}});
  const HWND child_ =
      settled_child("child", parent_, 10, 20, 200, 300, WS_VSCROLL | std::get<1>(GetParam()));
};

TEST_P(ChildScrollPaintTest, ParentPaintsBelowIt) {
  EXPECT_EQ(childs_thumb(), "18..149");
  InvalidateRect(parent_, nullptr, TRUE);
  EXPECT_EQ(childs_thumb(), "18..149");
  const RECT only_the_bar{195, 30, 205, 200};
  InvalidateRect(parent_, &only_the_bar, TRUE);
  EXPECT_EQ(childs_thumb(), "18..149");
  UpdateWindow(parent_);
  EXPECT_EQ(pixel(610, 200), kRed);
}

TEST_P(ChildScrollPaintTest, MovesAndSizesWithTheChild) {
  struct Place {
    RECT to;  // left, top, width, height
    const char* thumb;
  };
  for (const Place& place :
       {Place{{40, 40, 200, 300}, "18..149"}, Place{{10, 20, 150, 300}, "18..149"},
        Place{{10, 20, 150, 167}, "18..82"}, Place{{10, 20, 200, 300}, "18..149"}}) {
    const RECT& to = place.to;
    MoveWindow(child_, to.left, to.top, to.right, to.bottom, TRUE);
    const int x = 400 + to.left + to.right - 9;
    EXPECT_EQ(thumb_at(x, 100 + to.top, 100 + to.top + to.bottom), place.thumb) << text_of(to);
    EXPECT_EQ(pixel(x, 100 + to.top - 10), kRed) << "where it was";
    EXPECT_EQ(pixel(x + 10, 200), kRed);
  }
  EXPECT_EQ(pixel(551, 200), kWhite) << "the client area of the last place";
}

TEST_P(ChildScrollPaintTest, ComesAndGoesAndIsClippedByTheParent) {
  ShowScrollBar(child_, SB_VERT, FALSE);
  pump();
  EXPECT_EQ(pixel(601, 200), kWhite);
  ShowScrollBar(child_, SB_VERT, TRUE);
  EXPECT_EQ(childs_thumb(), "18..149");
  MoveWindow(child_, 108, 20, 200, 300, TRUE);  // the bar from 291 to 307 of 300
  pump();
  EXPECT_NE(pixel(699, 200), kRed);
  EXPECT_NE(pixel(699, 200), pixel(700, 200));
  MoveWindow(child_, 10, 20, 200, 300, TRUE);
  EXPECT_EQ(childs_thumb(), "18..149");
  EXPECT_EQ(pixel(608, 300), pixel(594, 300)) << "what was outside is drawn";
}

TEST_P(ChildScrollPaintTest, IsUncoveredByASibling) {
  const HWND above = settled_child("above", parent_, 150, 50, 100, 100);
  paint_patches("above", {{{0, 0, 100, 100}, kRed}});
  SetWindowPos(above, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  pump();
  EXPECT_EQ(pixel(601, 200), kRed);
  DestroyWindow(above);
  EXPECT_EQ(childs_thumb(), "18..149");
  EXPECT_NE(pixel(601, 200), kRed);
  EXPECT_EQ(pixel(594, 200), pixel(594, 400)) << "the track beside the thumb";
  EXPECT_EQ(pixel(580, 200), kWhite) << "the client area";
}

INSTANTIATE_TEST_SUITE_P(, ChildScrollPaintTest,
                         testing::Combine(testing::Values(0, WS_CLIPCHILDREN),
                                          testing::Values(0, WS_CLIPSIBLINGS)));

TEST_F(ScrollPaintTest, SiblingAboveIsNotDrawnOver) {
  const HWND parent = settled_popup("parent", 400, 100, 300, 350);
  const HWND above = settled_child("above", parent, 150, 50, 100, 100, WS_CLIPSIBLINGS);
  const HWND below = settled_child("below", parent, 10, 20, 200, 300, WS_VSCROLL | WS_CLIPSIBLINGS);
  pump();
  set_bar(below, SB_VERT, SIF_ALL, 600, 300, 100);
  SetScrollPos(below, SB_VERT, 301, TRUE);
  pump();
  EXPECT_NE(above, nullptr);
  EXPECT_EQ(pixel(601, 200), kWhite);
  EXPECT_NE(pixel(601, 370), kWhite);
}

}  // namespace
}  // namespace corvane::conformance
