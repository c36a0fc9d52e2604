// Update regions, erasing and WM_PAINT of one window.
#include "tests/platform/conformance/support/message_names.h"
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class PaintTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    popup_ = settled_popup("pop", 100, 100, 200, 150);
  }
  void invalidate(RECT rect, BOOL erase) { InvalidateRect(popup_, &rect, erase); }
  HWND popup_ = nullptr;
};

struct Invalidation {
  const char* label;
  std::vector<RECT> rects;
  const char* bounds;  // empty: nothing to paint
};

class InvalidationTest : public PaintTest, public testing::WithParamInterface<Invalidation> {};

TEST_P(InvalidationTest, AccumulatesAndIsClipped) {
  for (const RECT& rect : GetParam().rects) invalidate(rect, FALSE);
  const std::string bounds = GetParam().bounds;
  EXPECT_EQ(text_of(update_rect(popup_)), bounds.empty() ? "0,0,0,0" : bounds);
  pump();
  EXPECT_TRUE(log_is(bounds.empty() ? "" : "pop (q) WM_PAINT " + bounds + " fErase=0"));
}

INSTANTIATE_TEST_SUITE_P(
    , InvalidationTest,
    testing::Values(Invalidation{"One", {{10, 20, 30, 40}}, "10,20,30,40"},
                    Invalidation{"Union", {{10, 20, 30, 40}, {100, 5, 120, 25}}, "10,5,120,40"},
                    Invalidation{"ClippedToTheClient", {{-10, -20, 30, 40}}, "0,0,30,40"},
                    Invalidation{"LargerThanTheClient", {{-10, -20, 3000, 4000}}, "0,0,200,150"},
                    Invalidation{"Empty", {{10, 20, 10, 40}}, ""},
                    Invalidation{"UpsideDown", {{30, 40, 10, 20}}, ""},
                    Invalidation{"Outside", {{200, 0, 300, 100}}, ""},
                    Invalidation{"EmptyAddsNothing", {{1, 2, 3, 4}, {50, 50, 50, 50}}, "1,2,3,4"}),
    [](const auto& instance) { return instance.param.label; });

TEST_F(PaintTest, NullIsTheWholeClient) {
  InvalidateRect(popup_, nullptr, FALSE);
  pump();
  EXPECT_TRUE(log_is("pop (q) WM_PAINT 0,0,200,150 fErase=0"));
}

TEST_F(PaintTest, HiddenWindowsAreNotInvalidated) {
  ShowWindow(popup_, SW_HIDE);
  settle();
  InvalidateRect(popup_, nullptr, TRUE);
  EXPECT_EQ(text_of(update_rect(popup_)), "0,0,0,0");
  pump();
  EXPECT_TRUE(log_is(""));
}

TEST_F(PaintTest, EraseRequestIsSticky) {
  invalidate({0, 0, 10, 10}, TRUE);
  invalidate({20, 20, 30, 30}, FALSE);
  pump();
  EXPECT_TRUE(log_is("pop (q) WM_PAINT 0,0,30,30 fErase=0 { WM_ERASEBKGND }"));
}

TEST_F(PaintTest, NoEraseRequestNoErase) {
  invalidate({0, 0, 10, 10}, FALSE);
  pump();
  EXPECT_TRUE(log_is("pop (q) WM_PAINT 0,0,10,10 fErase=0"));
}

TEST_F(PaintTest, EraseIsClippedToTheUpdateRegion) {
  RECT clip{};
  recorder().on("pop", WM_ERASEBKGND, [&](const Message& sent) -> std::optional<LRESULT> {
    GetClipBox(reinterpret_cast<HDC>(sent.wparam), &clip);
    return 1;
  });
  invalidate({10, 20, 30, 40}, TRUE);
  pump();
  EXPECT_EQ(text_of(clip), "10,20,30,40");
}

TEST_F(PaintTest, UnhandledEraseIsReportedOnce) {
  recorder().answer("pop", WM_ERASEBKGND, 0);
  invalidate({0, 0, 10, 10}, TRUE);
  pump();
  EXPECT_TRUE(log_is("pop (q) WM_PAINT 0,0,10,10 fErase=1 { WM_ERASEBKGND }"));
}

TEST_F(PaintTest, ObservedThatTheNextPaintForgetsAnUnhandledErase) {
  recorder().answer("pop", WM_ERASEBKGND, 0);
  invalidate({0, 0, 10, 10}, TRUE);
  settle();
  invalidate({0, 0, 10, 10}, FALSE);
  pump();
  EXPECT_TRUE(log_is("pop (q) WM_PAINT 0,0,10,10 fErase=0"));
}

TEST_F(PaintTest, NullBrushLeavesTheEraseToThePainter) {
  const HWND none = create("none", {.style = WS_POPUP | WS_VISIBLE, .brush = nullptr});
  settle();
  InvalidateRect(none, nullptr, TRUE);
  pump();
  EXPECT_TRUE(log_is("none (q) WM_PAINT 0,0,100,100 fErase=1 { WM_ERASEBKGND }"));
}

TEST_F(PaintTest, UnhandledEraseOfTheShowingIsLeftToTheFirstPaint) {
  recorder().answer("late", WM_ERASEBKGND, 0);
  create("late", {.style = WS_POPUP | WS_VISIBLE});
  recorder().clear();
  recorder().only({WM_PAINT});
  pump();
  EXPECT_TRUE(log_is("late (q) WM_PAINT 0,0,100,100 fErase=1"));
}

TEST_F(PaintTest, UnhandledEraseOfAResizeIsLeftToThePaint) {
  recorder().answer("pop", WM_ERASEBKGND, 0);
  recorder().only({WM_PAINT});
  MoveWindow(popup_, 100, 100, 220, 150, TRUE);
  pump();
  EXPECT_TRUE(log_is("pop (q) WM_PAINT 200,0,220,150 fErase=1"));
}

struct Validation {
  const char* label;
  std::vector<RECT> validated;
  const char* left;
};

class ValidationTest : public PaintTest, public testing::WithParamInterface<Validation> {};

TEST_P(ValidationTest, LeavesTheRest) {
  invalidate({0, 0, 100, 50}, TRUE);
  for (const RECT& rect : GetParam().validated) ValidateRect(popup_, &rect);
  EXPECT_EQ(text_of(update_rect(popup_)), GetParam().left);
}

INSTANTIATE_TEST_SUITE_P(
    , ValidationTest,
    testing::Values(Validation{"Left", {{0, 0, 40, 50}}, "40,0,100,50"},
                    Validation{"Middle", {{40, 0, 60, 50}}, "0,0,100,50"},
                    Validation{"Outside", {{150, 0, 160, 50}}, "0,0,100,50"},
                    Validation{"InTwoParts", {{0, 0, 40, 50}, {40, 0, 100, 50}}, "0,0,0,0"}),
    [](const auto& instance) { return instance.param.label; });

TEST_F(PaintTest, ValidatingTheWholeRemovesTheEraseToo) {
  invalidate({0, 0, 100, 50}, TRUE);
  ValidateRect(popup_, nullptr);
  pump();
  EXPECT_TRUE(log_is(""));
  invalidate({0, 0, 10, 10}, FALSE);
  pump();
  EXPECT_TRUE(log_is("pop (q) WM_PAINT 0,0,10,10 fErase=0"));
}

TEST_F(PaintTest, ClipIsTheExactRegion) {
  std::vector<BOOL> visible;
  recorder().on("pop", WM_PAINT, [&](const Message& sent) -> std::optional<LRESULT> {
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(sent.window, &paint);
    EXPECT_EQ(text_of(paint.rcPaint), "0,0,120,120");
    for (const RECT& rect : {RECT{0, 0, 5, 5}, RECT{110, 110, 115, 115}, RECT{50, 50, 60, 60}}) {
      visible.push_back(RectVisible(dc, &rect) != 0);
    }
    fill(dc, {0, 0, 200, 150}, RGB(255, 0, 0));
    EndPaint(sent.window, &paint);
    return 0;
  });
  invalidate({0, 0, 10, 10}, FALSE);
  invalidate({100, 100, 120, 120}, FALSE);
  pump();
  EXPECT_EQ(visible, (std::vector<BOOL>{1, 1, 0}));
  EXPECT_EQ(pixel(105, 105), RGB(255, 0, 0));
  EXPECT_EQ(pixel(205, 205), RGB(255, 0, 0));
  EXPECT_EQ(pixel(150, 150), RGB(255, 255, 255));
}

TEST_F(PaintTest, UpdateWindowSendsThePaintWhenThereIsSomething) {
  EXPECT_NE(UpdateWindow(popup_), 0);
  EXPECT_TRUE(log_is(""));
  invalidate({0, 0, 10, 10}, FALSE);
  UpdateWindow(popup_);
  EXPECT_TRUE(log_is("pop WM_PAINT 0,0,10,10 fErase=0"));
  recorder().clear();
  pump();
  EXPECT_TRUE(log_is(""));
}

struct Redraw {
  const char* label;
  UINT flags;
  const char* now;    // messages sent by the call
  const char* later;  // messages on pumping
};

class RedrawTest : public PaintTest, public testing::WithParamInterface<Redraw> {};

TEST_P(RedrawTest, InvalidatesUpdatesAndErases) {
  const RECT rect{10, 10, 20, 20};
  EXPECT_NE(RedrawWindow(popup_, &rect, nullptr, GetParam().flags), 0);
  EXPECT_TRUE(log_is(GetParam().now));
  recorder().clear();
  pump();
  EXPECT_TRUE(log_is(GetParam().later));
}

INSTANTIATE_TEST_SUITE_P(
    , RedrawTest,
    testing::Values(Redraw{"Invalidate", RDW_INVALIDATE, "",
                           "pop (q) WM_PAINT 10,10,20,20 fErase=0"},
                    Redraw{"InvalidateAndErase", RDW_INVALIDATE | RDW_ERASE, "",
                           "pop (q) WM_PAINT 10,10,20,20 fErase=0 { WM_ERASEBKGND }"},
                    Redraw{"UpdateNow", RDW_INVALIDATE | RDW_UPDATENOW,
                           "pop WM_PAINT 10,10,20,20 fErase=0", ""},
                    Redraw{"UpdateNowWithErase", RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW,
                           "pop WM_PAINT 10,10,20,20 fErase=0 { WM_ERASEBKGND }", ""},
                    Redraw{"EraseNow", RDW_INVALIDATE | RDW_ERASE | RDW_ERASENOW,
                           "pop WM_ERASEBKGND", "pop (q) WM_PAINT 10,10,20,20 fErase=0"},
                    Redraw{"NothingToUpdate", RDW_UPDATENOW, "", ""}),
    [](const auto& instance) { return instance.param.label; });

TEST_F(PaintTest, RedrawWindowValidates) {
  invalidate({0, 0, 50, 50}, TRUE);
  RedrawWindow(popup_, nullptr, nullptr, RDW_VALIDATE);
  EXPECT_EQ(text_of(update_rect(popup_)), "0,0,0,0");
}

TEST_F(PaintTest, DefaultHandlingErasesAndValidates) {
  recorder().on("pop", WM_PAINT, [](const Message& sent) -> std::optional<LRESULT> {
    return DefWindowProcW(sent.window, sent.message, sent.wparam, sent.lparam);
  });
  invalidate({0, 0, 10, 10}, TRUE);
  pump();
  EXPECT_TRUE(log_is("pop (q) WM_PAINT { WM_ERASEBKGND }"));
}

class ObservedPaintTest : public PaintTest {};

TEST_F(ObservedPaintTest, InvalidationWhilePaintingSurvives) {
  int paints = 0;
  recorder().on("pop", WM_PAINT, [&](const Message& sent) -> std::optional<LRESULT> {
    PAINTSTRUCT paint{};
    BeginPaint(sent.window, &paint);
    if (++paints == 1) invalidate({30, 30, 40, 40}, FALSE);
    if (paints == 2) {
      EXPECT_EQ(text_of(paint.rcPaint), "30,30,40,40");
    }
    EndPaint(sent.window, &paint);
    return 0;
  });
  invalidate({0, 0, 10, 10}, FALSE);
  pump();
  EXPECT_EQ(paints, 2);
}

TEST_F(ObservedPaintTest, BeginPaintOutsidePaintWorksOnAValidWindow) {
  PAINTSTRUCT paint{};
  EXPECT_NE(BeginPaint(popup_, &paint), nullptr);
  EXPECT_EQ(text_of(paint.rcPaint), "0,0,0,0");
  EXPECT_NE(EndPaint(popup_, &paint), 0);
  invalidate({1, 2, 3, 4}, FALSE);
  BeginPaint(popup_, &paint);
  EXPECT_EQ(text_of(paint.rcPaint), "1,2,3,4");
  EndPaint(popup_, &paint);
  pump();
  EXPECT_TRUE(log_is(""));
}

TEST_F(ObservedPaintTest, InvalidationsOfAHiddenWindowAreNotKeptAndShowingErasesAtOnce) {
  ShowWindow(popup_, SW_HIDE);
  settle();
  invalidate({1, 2, 3, 4}, TRUE);
  recorder().only({WM_ERASEBKGND, WM_PAINT});
  ShowWindow(popup_, SW_SHOW);
  EXPECT_TRUE(log_is("pop WM_ERASEBKGND"));
  recorder().clear();
  pump();
  EXPECT_TRUE(log_is("pop (q) WM_PAINT 0,0,200,150"));
}

TEST_F(PaintTest, SwitchedOffRedrawKeepsNoInvalidation) {
  SendMessageW(popup_, WM_SETREDRAW, FALSE, 0);
  EXPECT_EQ(IsWindowVisible(popup_), 0);
  invalidate({0, 0, 10, 10}, TRUE);
  SendMessageW(popup_, WM_SETREDRAW, TRUE, 0);
  EXPECT_NE(IsWindowVisible(popup_), 0);
  recorder().clear();
  pump();
  EXPECT_TRUE(log_is(""));
  invalidate({0, 0, 10, 10}, FALSE);
  pump();
  EXPECT_TRUE(log_is("pop (q) WM_PAINT 0,0,10,10"));
}

TEST_F(PaintTest, DrawingOutsidePaintIsShownAndClippedToTheWindow) {
  const HDC dc = GetDC(popup_);
  ASSERT_NE(dc, nullptr);
  fill(dc, {-50, -50, 500, 500}, RGB(0, 0, 255));
  EXPECT_EQ(ReleaseDC(popup_, dc), 1);
  EXPECT_EQ(pixel(100, 100), RGB(0, 0, 255));
  EXPECT_EQ(pixel(299, 249), RGB(0, 0, 255));
  EXPECT_NE(pixel(99, 100), RGB(0, 0, 255));
  EXPECT_NE(pixel(300, 249), RGB(0, 0, 255));
}

}  // namespace
}  // namespace corvane::conformance
