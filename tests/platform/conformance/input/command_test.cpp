// What a push button needs of the window system, with a small button made here.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class CommandTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    parent_ = settled_popup("parent", 100, 100, 200, 200);
    button_ = create(
        "button",
        {.parent = parent_, .style = WS_CHILD | WS_VISIBLE, .place = {50, 50, 60, 20}, .id = 33});
    recorder().before_default("button", WM_LBUTTONDOWN, [this] {
      SetFocus(button_);
      SetCapture(button_);
      pressed_ = true;
    });
    recorder().on("button", WM_MOUSEMOVE, [this](const Message& sent) -> std::optional<LRESULT> {
      if (GetCapture() != button_) return 0;
      const RECT client = client_rect(button_);
      pressed_ = PtInRect(&client, {GET_X_LPARAM(sent.lparam), GET_Y_LPARAM(sent.lparam)}) != 0;
      return 0;
    });
    recorder().before_default("button", WM_CAPTURECHANGED, [this] { pressed_ = false; });
    recorder().before_default("button", WM_LBUTTONUP, [this] {
      const bool clicked = pressed_ && GetCapture() == button_;
      if (GetCapture() == button_) ReleaseCapture();
      if (clicked) {
        SendMessageW(parent_, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(button_), BN_CLICKED),
                     reinterpret_cast<LPARAM>(button_));
      }
    });
    recorder().before_default("parent", WM_COMMAND, [this] {
      focus_at_command_ = GetFocus();
      capture_at_command_ = GetCapture();
    });
    recorder().only({WM_COMMAND, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_CAPTURECHANGED});
    settle();
  }
  HWND parent_ = nullptr;
  HWND button_ = nullptr;
  bool pressed_ = false;
  HWND focus_at_command_ = nullptr;
  HWND capture_at_command_ = nullptr;
};

TEST_F(CommandTest, ReleaseInsideClicksAfterTheCaptureIsGone) {
  click(155, 155);
  EXPECT_TRUE(
      log_is("button (q) WM_LBUTTONDOWN > (q) WM_LBUTTONUP {"
             "  WM_CAPTURECHANGED none > parent WM_COMMAND 33 0 button }"));
  EXPECT_EQ(focus_at_command_, button_);
  EXPECT_EQ(capture_at_command_, nullptr);
}

TEST_F(CommandTest, ReleaseOutsideDoesNothing) {
  press_at(155, 155);
  move_to(105, 105);
  release();
  EXPECT_EQ(recorder().count("parent", WM_COMMAND), 0);
  EXPECT_EQ(recorder().count("button", WM_LBUTTONUP), 1);
}

TEST_F(CommandTest, MovingOffAndBackClicks) {
  press_at(155, 155);
  move_to(105, 105);
  EXPECT_FALSE(pressed_);
  move_to(160, 160);
  release();
  EXPECT_EQ(recorder().count("parent", WM_COMMAND), 1);
}

TEST_F(CommandTest, PressElsewhereAndReleaseOverTheButtonDoesNothing) {
  press_at(105, 105);
  move_to(155, 155);
  release();
  EXPECT_EQ(recorder().count("parent", WM_COMMAND), 0);
}

TEST_F(CommandTest, DisabledButtonLeavesTheMouseToItsParent) {
  EnableWindow(button_, FALSE);
  settle();
  click(155, 157);
  EXPECT_TRUE(log_is("parent (q) WM_LBUTTONDOWN 55,57 > (q) WM_LBUTTONUP 55,57"));
}

TEST_F(CommandTest, DisabledBetweenPressAndReleaseDoesNotClick) {
  press_at(155, 155);
  EnableWindow(button_, FALSE);
  release();
  EXPECT_EQ(recorder().count("parent", WM_COMMAND), 0);
}

TEST_F(CommandTest, ButtonThatDestroysItsParentInTheCommandIsHarmless) {
  recorder().before_default("parent", WM_COMMAND, [this] { DestroyWindow(parent_); });
  click(155, 155);
  EXPECT_EQ(IsWindow(button_), 0);
  EXPECT_EQ(GetFocus(), nullptr);
}

}  // namespace
}  // namespace corvane::conformance
