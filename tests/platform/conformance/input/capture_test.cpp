// Mouse capture.
#include "tests/platform/conformance/support/family_test.h"
#include "tests/support/own_system.h"

namespace corvane::conformance {
namespace {

class CaptureTest : public FamilyTest {
 protected:
  CaptureTest() {
    recorder().only({WM_CAPTURECHANGED, WM_CANCELMODE, WM_NCHITTEST, WM_SETCURSOR, WM_MOUSEMOVE,
                     WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP});
  }
};

TEST_F(CaptureTest, PreviousWindowIsReturnedAndTold) {
  step("taken", SetCapture(top_));
  step("by another window", SetCapture(child_));
  step("observed: by the same window again", SetCapture(child_));
  step("released", ReleaseCapture());
  step("released without a capture", ReleaseCapture());
  step("taken again", SetCapture(top_));
  step("set to nothing", SetCapture(nullptr));
}

TEST_F(CaptureTest, AllMessagesGoToTheCaptureWindowWithoutHitTestOrCursor) {
  SetCapture(child_);
  move_to(110, 120);
  press();
  move_to(550, 150);
  move_to(20, 30);
  release();
  press(MOUSEEVENTF_RIGHTDOWN);
  release(MOUSEEVENTF_RIGHTUP);
  step("a drag out of every window");
  move_to(510, 110);
  ReleaseCapture();
  press();
  step("a press after its end");
}

TEST_F(CaptureTest, PressOnOneWindowMayCaptureForAnother) {
  recorder().before_default("top", WM_LBUTTONDOWN, [&] { SetCapture(other_); });
  press_at(110, 110);
  move_to(120, 115);
  release();
  step();
}

TEST_F(CaptureTest, ObservedEnds) {
  SetCapture(child_);
  EnableWindow(child_, FALSE);
  step("disabling cancels it");
  EnableWindow(child_, TRUE);
  SetCapture(child_);
  ShowWindow(child_, SW_HIDE);
  move_to(160, 170);
  step("hiding leaves it");
  DestroyWindow(child_);
  step("destroying ends it silently");
  EXPECT_FALSE(own().display.captured());
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
