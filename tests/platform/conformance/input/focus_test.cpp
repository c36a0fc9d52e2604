// Keyboard focus, activation, and windows that are disabled.
#include "tests/platform/conformance/support/family_test.h"
#include "tests/support/own_system.h"

namespace corvane::conformance {
namespace {

class FocusTest : public FamilyTest {
 protected:
  FocusTest() {
    recorder().only({WM_SETFOCUS, WM_KILLFOCUS, WM_NCACTIVATE, WM_ACTIVATE, WM_ENABLE,
                     WM_CANCELMODE, WM_WINDOWPOSCHANGED});
  }
  void give_focus(HWND window) {
    SetFocus(window);
    settle();
  }
  const HWND other_child_ = settled_child("other_child", other_, 0, 0, 20, 20);
  const HWND sibling_ = settled_child("sibling", top_, 0, 0, 20, 20);
};

TEST_F(FocusTest, OldIsToldThenNewAndTheOldIsReturned) {
  step("to a child", SetFocus(sibling_));
  step("to its sibling", SetFocus(parent_));
  step("to the same window", SetFocus(parent_));
  step("to nothing", SetFocus(nullptr));
  step("from nothing", SetFocus(sibling_));
  step("observed: another window's child, which is activated first", SetFocus(other_child_));
  EXPECT_EQ(GetForegroundWindow(), other_);
}

TEST_F(FocusTest, ObservedThatTheLoserSeesTheNewFocus) {
  HWND seen = nullptr;
  recorder().before_default("top", WM_KILLFOCUS, [&] { seen = GetFocus(); });
  SetFocus(sibling_);
  EXPECT_EQ(seen, sibling_);
}

TEST_F(FocusTest, DisabledWindowsAndWhatIsInsideThemRefuse) {
  EnableWindow(parent_, FALSE);
  settle();
  step("disabled", SetFocus(parent_));
  step("in a disabled one", SetFocus(child_));
  step("but enabled by itself", IsWindowEnabled(child_));
}

TEST_F(FocusTest, ObservedWhenWindowsAreHidden) {
  give_focus(sibling_);
  step("hiding the focused child gives it to the parent", ShowWindow(sibling_, SW_HIDE));
  step("the hidden child may take it", SetFocus(sibling_));
  give_focus(child_);
  step("hiding a parent of the focused child leaves it", ShowWindow(parent_, SW_HIDE));
  const HWND popup = settled_popup("pop", 0, 0, 20, 20, top_);
  step("a top-level window does not remember it", ShowWindow(popup, SW_HIDE));
}

TEST_F(FocusTest, TwoThatGiveItToEachOtherForEverAreStopped) {
  int told = 0;
  for (const auto& [from, to] : {std::pair{"parent", sibling_}, std::pair{"sibling", parent_}}) {
    for (const UINT message : {WM_SETFOCUS, WM_KILLFOCUS}) {
      recorder().before_default(from, message, [&told, target = to] {
        if (++told < 5000) SetFocus(target);
      });
    }
  }
  SetFocus(sibling_);
  EXPECT_LT(told, 5000);
  recorder().remove_hooks();
  SetFocus(nullptr);
  settle();
  SetFocus(sibling_);
  EXPECT_EQ(recorder().count("sibling", WM_SETFOCUS), 1) << "messages come again";
}

// The last one told is the one that has it.
TEST_F(FocusTest, LoserMayMoveItElsewhere) {
  give_focus(sibling_);
  recorder().before_default("sibling", WM_KILLFOCUS, [&] {
    if (GetFocus() == parent_) SetFocus(child_);
  });
  SetFocus(parent_);
  step();
}

TEST_F(FocusTest, ActivationTellsOldThenNewWithTheFocusChangeInside) {
  give_focus(sibling_);
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
  give_focus(sibling_);
  step("the focused window", EnableWindow(sibling_, FALSE));
  step("again", EnableWindow(sibling_, FALSE));
  step("enabling does not give the focus back", EnableWindow(sibling_, TRUE));
  step("enabling again", EnableWindow(sibling_, TRUE));
  step("a window without the focus", EnableWindow(sibling_, FALSE));
  give_focus(child_);
  step("a parent of the focused child leaves it there", EnableWindow(parent_, FALSE));
}

// In the order in which the platform documents the messages; of their sequence it says nothing.
TEST_F(FocusTest, AnotherProgramTakesTheDesktopsFocusAndGivesItBack) {
  const auto desktop_focus = [this](bool gained) {
    system::InputEvent event;
    event.kind = system::InputKind::focus;
    event.down = gained;
    own().display.push(event);
    pump();
    EXPECT_EQ(GetForegroundWindow(), gained ? GetActiveWindow() : nullptr);
  };
  recorder().only({WM_SETFOCUS, WM_KILLFOCUS, WM_NCACTIVATE, WM_ACTIVATE, WM_ACTIVATEAPP});
  give_focus(sibling_);
  for (const bool gained : {false, true, true, false}) {
    desktop_focus(gained);
    step(gained ? "given back" : "taken");
  }
  SetActiveWindow(other_);
  step("one that is activated meanwhile");
  desktop_focus(true);
  step("tells only the program then");
  desktop_focus(false);
  DestroyWindow(other_);
  forget();
  desktop_focus(true);
  step("the next one, for the one that was active is gone");
  DestroyWindow(top_);
  step("the last one's end");
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
