// Update regions, erasing and WM_PAINT of one window.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class PaintTest : public WindowTest {
 protected:
  PaintTest() { recorder().only({WM_PAINT, WM_ERASEBKGND}); }
  void invalidate(RECT rect, BOOL erase = FALSE) { InvalidateRect(popup_, &rect, erase); }
  std::string to_paint() const { return text_of(update_rect(popup_)); }
  const HWND popup_ = settled_popup("pop", 100, 100, 200, 150);
};

struct Regions {
  std::vector<RECT> rects;
  const char* bounds;
};

TEST_F(PaintTest, InvalidationsAccumulateAndAreClipped) {
  for (const Regions& given :
       {Regions{{{10, 20, 30, 40}}, "10,20,30,40"},
        Regions{{{10, 20, 30, 40}, {100, 5, 120, 25}}, "10,5,120,40"},
        Regions{{{-10, -20, 30, 40}}, "0,0,30,40"},
        Regions{{{-10, -20, 3000, 4000}}, "0,0,200,150"}, Regions{{{10, 20, 10, 40}}, "0,0,0,0"},
        Regions{{{30, 40, 10, 20}}, "0,0,0,0"}, Regions{{{200, 0, 300, 100}}, "0,0,0,0"},
        Regions{{{1, 2, 3, 4}, {50, 50, 50, 50}}, "1,2,3,4"}}) {
    for (const RECT& rect : given.rects) invalidate(rect);
    EXPECT_EQ(to_paint(), given.bounds);
    pump();
    EXPECT_EQ(to_paint(), "0,0,0,0") << given.bounds;
  }
  forget();
  invalidate({10, 20, 30, 40});
  now_and_later("a part");
  InvalidateRect(popup_, nullptr, FALSE);
  now_and_later("the whole client");
}

TEST_F(PaintTest, ValidationLeavesTheRest) {
  for (const Regions& given :
       {Regions{{{0, 0, 40, 50}}, "40,0,100,50"}, Regions{{{40, 0, 60, 50}}, "0,0,100,50"},
        Regions{{{150, 0, 160, 50}}, "0,0,100,50"},
        Regions{{{0, 0, 40, 50}, {40, 0, 100, 50}}, "0,0,0,0"}}) {
    invalidate({0, 0, 100, 50}, TRUE);
    for (const RECT& rect : given.rects) ValidateRect(popup_, &rect);
    EXPECT_EQ(to_paint(), given.bounds);
  }
  invalidate({0, 0, 100, 50}, TRUE);
  RedrawWindow(popup_, nullptr, nullptr, RDW_VALIDATE);
  pump_step("the whole, by RedrawWindow");
  invalidate({0, 0, 100, 50}, TRUE);
  ValidateRect(popup_, nullptr);
  invalidate({0, 0, 10, 10});
  pump_step("the whole removes the erase too");
}

TEST_F(PaintTest, EraseRequestIsSticky) {
  invalidate({0, 0, 10, 10}, TRUE);
  invalidate({20, 20, 30, 30});
  pump_step("one of two");
  RECT clip{};
  recorder().on("pop", WM_ERASEBKGND, [&](const Message& sent) -> std::optional<LRESULT> {
    GetClipBox(reinterpret_cast<HDC>(sent.wparam), &clip);
    return 1;
  });
  invalidate({10, 20, 30, 40}, TRUE);
  pump();
  EXPECT_EQ(text_of(clip), "10,20,30,40") << "the erase is clipped to the update region";
}

TEST_F(PaintTest, UnhandledEraseIsLeftToThePainter) {
  recorder().answer("pop", WM_ERASEBKGND, 0);
  invalidate({0, 0, 10, 10}, TRUE);
  pump_step("once");
  invalidate({0, 0, 10, 10});
  pump_step("observed: the next paint forgets it");
  MoveWindow(popup_, 100, 100, 220, 150, TRUE);
  pump_step("of a resize");
  recorder().answer("late", WM_ERASEBKGND, 0);
  create("late", {.style = WS_POPUP | WS_VISIBLE});
  now_and_later("of the showing");
  create("none", {.style = WS_POPUP | WS_VISIBLE, .brush = nullptr});
  pump_step("without a brush");
}

TEST_F(PaintTest, ClipIsTheExactRegion) {
  std::vector<BOOL> visible;
  recorder().on_paint("pop", [&](const PAINTSTRUCT& paint) {
    EXPECT_EQ(text_of(paint.rcPaint), "0,0,120,120");
    for (const RECT& rect : {RECT{0, 0, 5, 5}, RECT{110, 110, 115, 115}, RECT{50, 50, 60, 60}}) {
      visible.push_back(RectVisible(paint.hdc, &rect) != 0);
    }
    fill(paint.hdc, {0, 0, 200, 150}, kRed);
  });
  invalidate({0, 0, 10, 10});
  invalidate({100, 100, 120, 120});
  pump();
  EXPECT_EQ(visible, (std::vector<BOOL>{1, 1, 0}));
  EXPECT_EQ(pixel(105, 105), kRed);
  EXPECT_EQ(pixel(205, 205), kRed);
  EXPECT_EQ(pixel(150, 150), kWhite);
}

TEST_F(PaintTest, RedrawInvalidatesUpdatesAndErases) {
  struct Redraw {
    const char* label;
    UINT flags;
  };
  const RECT rect{10, 10, 20, 20};
  for (const Redraw& each :
       {Redraw{"invalidate", RDW_INVALIDATE}, Redraw{"with erase", RDW_INVALIDATE | RDW_ERASE},
        Redraw{"update now", RDW_INVALIDATE | RDW_UPDATENOW},
        Redraw{"update now with erase", RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW},
        Redraw{"erase now", RDW_INVALIDATE | RDW_ERASE | RDW_ERASENOW},
        Redraw{"nothing to update", RDW_UPDATENOW}}) {
    EXPECT_NE(RedrawWindow(popup_, &rect, nullptr, each.flags), 0) << each.label;
    now_and_later(each.label);
  }
  invalidate(rect);
  EXPECT_NE(UpdateWindow(popup_), 0);
  now_and_later("UpdateWindow");
  EXPECT_NE(UpdateWindow(popup_), 0);
  now_and_later("UpdateWindow without anything to paint");
}

TEST_F(PaintTest, DefaultHandlingErasesAndValidates) {
  recorder().on("pop", WM_PAINT, [](const Message& sent) -> std::optional<LRESULT> {
    return DefWindowProcW(sent.window, sent.message, sent.wparam, sent.lparam);
  });
  invalidate({0, 0, 10, 10}, TRUE);
  pump_step("");
}

TEST_F(PaintTest, ObservedThatInvalidationWhilePaintingSurvives) {
  int paints = 0;
  recorder().on_paint("pop", [&](const PAINTSTRUCT&) {
    if (++paints == 1) invalidate({30, 30, 40, 40});
  });
  invalidate({0, 0, 10, 10});
  pump_step("");
}

TEST_F(PaintTest, ObservedThatBeginPaintOutsidePaintWorksOnAValidWindow) {
  for (const RECT& rect : {RECT{0, 0, 0, 0}, RECT{1, 2, 3, 4}}) {
    invalidate(rect);
    PAINTSTRUCT paint{};
    EXPECT_NE(BeginPaint(popup_, &paint), nullptr);
    EXPECT_EQ(text_of(paint.rcPaint), text_of(rect));
    EXPECT_NE(EndPaint(popup_, &paint), 0);
  }
  pump_step("");
}

TEST_F(PaintTest, WhatIsNotShownKeepsNoInvalidation) {
  ShowWindow(popup_, SW_HIDE);
  settle();
  invalidate({1, 2, 3, 4}, TRUE);
  pump_step("hidden");
  ShowWindow(popup_, SW_SHOW);
  now_and_later("observed: showing erases at once");
  SendMessageW(popup_, WM_SETREDRAW, FALSE, 0);
  EXPECT_EQ(IsWindowVisible(popup_), 0);
  invalidate({0, 0, 10, 10}, TRUE);
  SendMessageW(popup_, WM_SETREDRAW, TRUE, 0);
  pump_step("redraw switched off and on");
  invalidate({0, 0, 10, 10});
  pump_step("invalidated again");
}

TEST_F(PaintTest, DrawingOutsidePaintIsShownAndClippedToTheWindow) {
  draw(popup_, {-50, -50, 500, 500}, kBlue);
  EXPECT_EQ(pixel(100, 100), kBlue);
  EXPECT_EQ(pixel(299, 249), kBlue);
  EXPECT_NE(pixel(99, 100), kBlue);
  EXPECT_NE(pixel(300, 249), kBlue);
}

}  // namespace
}  // namespace corvane::conformance
