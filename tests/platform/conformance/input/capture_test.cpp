// Mouse capture.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class CaptureTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    top_ = settled_popup("top", 100, 100, 200, 200);
    child_ = settled_child("child", top_, 50, 50, 50, 50);
    pop_ = settled_popup("pop", 400, 100, 100, 100, top_);
    SetActiveWindow(top_);
    settle();
  }
  HWND top_ = nullptr;
  HWND child_ = nullptr;
  HWND pop_ = nullptr;
};

TEST_F(CaptureTest, ReturnsThePreviousWindowAndTellsTheLoser) {
  recorder().only({WM_CAPTURECHANGED});
  EXPECT_EQ(SetCapture(top_), nullptr);
  EXPECT_EQ(GetCapture(), top_);
  EXPECT_TRUE(log_is(""));
  EXPECT_EQ(SetCapture(child_), top_);
  EXPECT_TRUE(log_is("top WM_CAPTURECHANGED child"));
  recorder().clear();
  EXPECT_NE(ReleaseCapture(), 0);
  EXPECT_TRUE(log_is("child WM_CAPTURECHANGED none"));
  EXPECT_EQ(GetCapture(), nullptr);
  recorder().clear();
  EXPECT_NE(ReleaseCapture(), 0) << "also without a capture";
  EXPECT_TRUE(log_is(""));
}

TEST_F(CaptureTest, SettingNullReleases) {
  SetCapture(top_);
  recorder().only({WM_CAPTURECHANGED});
  EXPECT_EQ(SetCapture(nullptr), top_);
  EXPECT_TRUE(log_is("top WM_CAPTURECHANGED none"));
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(CaptureTest, ObservedThatSettingItAgainTellsTheSameWindow) {
  SetCapture(top_);
  recorder().only({WM_CAPTURECHANGED});
  EXPECT_EQ(SetCapture(top_), top_);
  EXPECT_TRUE(log_is("top WM_CAPTURECHANGED top"));
}

TEST_F(CaptureTest, AllMessagesGoToTheCaptureWindowWithoutHitTestOrCursor) {
  SetCapture(child_);
  recorder().only({WM_NCHITTEST, WM_SETCURSOR, WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP,
                   WM_RBUTTONDOWN, WM_RBUTTONUP});
  move_to(110, 120);
  press();
  move_to(450, 150);
  release();
  press(MOUSEEVENTF_RIGHTDOWN);
  EXPECT_TRUE(
      log_is("child (q) WM_MOUSEMOVE -40,-30 - > (q) WM_LBUTTONDOWN -40,-30 LBUTTON >"
             "(q) WM_MOUSEMOVE 300,0 LBUTTON > (q) WM_LBUTTONUP 300,0 - >"
             "(q) WM_RBUTTONDOWN 300,0 RBUTTON"));
  EXPECT_EQ(GetCapture(), child_) << "the release does not end the capture";
}

TEST_F(CaptureTest, DragsContinueOutsideEveryWindow) {
  press_at(110, 110);
  SetCapture(top_);
  recorder().only({WM_MOUSEMOVE, WM_LBUTTONUP});
  recorder().clear();
  move_to(20, 30);
  move_to(1000, 700);
  release();
  EXPECT_TRUE(
      log_is("top (q) WM_MOUSEMOVE -80,-70 LBUTTON > (q) WM_MOUSEMOVE 900,600 LBUTTON >"
             "(q) WM_LBUTTONUP 900,600"));
}

TEST_F(CaptureTest, PressOnOneWindowMayCaptureForAnother) {
  recorder().before_default("top", WM_LBUTTONDOWN, [&] { SetCapture(pop_); });
  recorder().only({WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP});
  move_to(110, 110);
  recorder().clear();
  press();
  move_to(120, 115);
  release();
  EXPECT_TRUE(
      log_is("top (q) WM_LBUTTONDOWN 10,10 > pop (q) WM_MOUSEMOVE -280,15 LBUTTON >"
             "pop (q) WM_LBUTTONUP -280,15 -"));
}

TEST_F(CaptureTest, AfterReleaseTheHitTestDecidesAgain) {
  SetCapture(child_);
  move_to(410, 110);
  ReleaseCapture();
  recorder().only({WM_LBUTTONDOWN});
  recorder().clear();
  press();
  EXPECT_TRUE(log_is("pop (q) WM_LBUTTONDOWN 10,10"));
}

class ObservedCaptureEnd : public CaptureTest {};

TEST_F(ObservedCaptureEnd, DisablingCancels) {
  SetCapture(child_);
  recorder().only({WM_CANCELMODE, WM_CAPTURECHANGED});
  EnableWindow(child_, FALSE);
  EXPECT_TRUE(log_is("child WM_CANCELMODE { WM_CAPTURECHANGED none }"));
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(ObservedCaptureEnd, DestroyingEndsItSilently) {
  SetCapture(child_);
  recorder().only({WM_CAPTURECHANGED});
  DestroyWindow(child_);
  EXPECT_TRUE(log_is(""));
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(ObservedCaptureEnd, HidingDoesNotEndIt) {
  SetCapture(child_);
  ShowWindow(child_, SW_HIDE);
  EXPECT_EQ(GetCapture(), child_);
  recorder().only({WM_MOUSEMOVE});
  settle();
  move_to(160, 170);
  EXPECT_TRUE(log_is("child (q) WM_MOUSEMOVE 10,20"));
}

TEST_F(CaptureTest, LoserMayTakeTheCaptureBackWithoutHarm) {
  SetCapture(top_);
  int told = 0;
  recorder().before_default("top", WM_CAPTURECHANGED, [&] {
    if (++told == 1) SetCapture(top_);
  });
  SetCapture(child_);
  EXPECT_LE(told, 2);
  EXPECT_TRUE(GetCapture() == top_ || GetCapture() == child_);
}

}  // namespace
}  // namespace corvane::conformance
