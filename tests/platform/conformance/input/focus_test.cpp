// Keyboard focus, activation, and windows that are disabled.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class FocusTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    other_ = settled_popup("other", 500, 100, 100, 100);
    other_child_ = settled_child("other_child", other_, 0, 0, 20, 20);
    top_ = settled_popup("top", 100, 100, 200, 200);
    first_ = settled_child("first", top_, 0, 0, 50, 50);
    second_ = settled_child("second", top_, 50, 0, 50, 50);
    inner_ = settled_child("inner", second_, 0, 0, 10, 10);
    recorder().only({WM_SETFOCUS, WM_KILLFOCUS, WM_NCACTIVATE, WM_ACTIVATE, WM_ENABLE,
                     WM_CANCELMODE, WM_WINDOWPOSCHANGED});
    settle();
  }
  void give_focus(HWND window) {
    SetFocus(window);
    settle();
  }
  HWND other_ = nullptr;
  HWND other_child_ = nullptr;
  HWND top_ = nullptr;
  HWND first_ = nullptr;
  HWND second_ = nullptr;
  HWND inner_ = nullptr;
};

TEST_F(FocusTest, OldIsToldThenNewAndTheOldIsReturned) {
  step("to a child", SetFocus(first_));
  step("to its sibling", SetFocus(second_));
  step("to the same window", SetFocus(second_));
  step("to nothing", SetFocus(nullptr));
  step("from nothing", SetFocus(first_));
  step("observed: another window's child, which is activated first", SetFocus(other_child_));
  EXPECT_EQ(GetForegroundWindow(), other_);
}

TEST_F(FocusTest, ObservedThatTheLoserSeesTheNewFocus) {
  HWND seen = nullptr;
  recorder().before_default("top", WM_KILLFOCUS, [&] { seen = GetFocus(); });
  SetFocus(first_);
  EXPECT_EQ(seen, first_);
}

TEST_F(FocusTest, DisabledWindowsAndWhatIsInsideThemRefuse) {
  EnableWindow(second_, FALSE);
  settle();
  step("disabled", SetFocus(second_));
  step("in a disabled one", SetFocus(inner_));
  step("but enabled by itself", IsWindowEnabled(inner_));
}

TEST_F(FocusTest, ObservedWhenWindowsAreHidden) {
  give_focus(first_);
  step("hiding the focused child gives it to the parent", ShowWindow(first_, SW_HIDE));
  step("the hidden child may take it", SetFocus(first_));
  give_focus(inner_);
  step("hiding a parent of the focused child leaves it", ShowWindow(second_, SW_HIDE));
  const HWND popup = settled_popup("pop", 0, 0, 20, 20, top_);
  step("a top-level window does not remember it", ShowWindow(popup, SW_HIDE));
}

// The last one told is the one that has it.
TEST_F(FocusTest, LoserMayMoveItElsewhere) {
  give_focus(first_);
  recorder().before_default("first", WM_KILLFOCUS, [&] {
    if (GetFocus() == second_) SetFocus(inner_);
  });
  SetFocus(second_);
  step();
}

TEST_F(FocusTest, ActivationTellsOldThenNewWithTheFocusChangeInside) {
  give_focus(first_);
  step("another", SetActiveWindow(other_));
  step("the same", SetActiveWindow(other_));
  recorder().answer("top", WM_ACTIVATE, 0);
  step("the focus change is the default handling's", SetActiveWindow(top_));
  settled_popup("cover", 500, 100, 100, 100);
  step("the window is raised", SetForegroundWindow(other_));
}

// The last one told is the one that is active.
TEST_F(FocusTest, LoserMayActivateYetAnother) {
  const HWND third = settled_popup("third", 0, 300, 20, 20);
  SetActiveWindow(top_);
  recorder().before_default("top", WM_ACTIVATE, [&] {
    if (GetActiveWindow() == other_) SetActiveWindow(third);
  });
  settle();
  SetActiveWindow(other_);
  step();
}

TEST_F(FocusTest, DisablingAndEnabling) {
  give_focus(first_);
  step("the focused window", EnableWindow(first_, FALSE));
  step("again", EnableWindow(first_, FALSE));
  step("enabling does not give the focus back", EnableWindow(first_, TRUE));
  step("enabling again", EnableWindow(first_, TRUE));
  step("a window without the focus", EnableWindow(first_, FALSE));
  give_focus(inner_);
  step("a parent of the focused child", EnableWindow(second_, FALSE));
}

TEST_F(FocusTest, HiddenPopupGivesTheActivationToItsEnabledOwner) {
  const HWND popup = settled_popup("pop", 0, 0, 20, 20, top_);
  EnableWindow(top_, FALSE);
  step("not to a disabled one", ShowWindow(popup, SW_HIDE));
  ShowWindow(popup, SW_SHOW);
  EnableWindow(top_, TRUE);
  settle();
  step("to an enabled one", ShowWindow(popup, SW_HIDE));
}

}  // namespace
}  // namespace corvane::conformance
