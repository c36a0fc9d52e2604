// Keys and characters.
#include "tests/platform/conformance/support/family_test.h"

namespace corvane::conformance {
namespace {

class KeyboardTest : public FamilyTest {
 protected:
  KeyboardTest() {
    recorder().only({WM_KEYDOWN, WM_CHAR, WM_KEYUP, WM_SYSKEYDOWN, WM_SYSCHAR, WM_SYSKEYUP});
  }
};

TEST_F(KeyboardTest, GoToTheFocusWindowWithTheirCharacter) {
  SetFocus(child_);
  forget();
  for (const int plain : {int{'A'}, int{'7'}, VK_RETURN, VK_ESCAPE, VK_BACK, VK_TAB, VK_SPACE})
    key(plain);
  step("with characters");
  for (const int silent :
       {VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN, VK_HOME, VK_END, VK_DELETE, VK_F1, VK_F12}) {
    key(silent);
  }
  step("without");
  recorder().only({WM_CHAR});
  for (const int modifier : {VK_SHIFT, VK_CONTROL}) {
    send_key(modifier, true);
    for (const int changed : {int{'A'}, int{'7'}, VK_RETURN, VK_BACK}) key(changed);
    send_key(modifier, false);
    pump();
    step(modifier == VK_SHIFT ? "with shift" : "with control");
  }
}

TEST_F(KeyboardTest, UnicodeInputBecomesItsCharacter) {
  recorder().only({WM_CHAR});
  INPUT inputs[2] = {};
  for (INPUT& input : inputs) input.type = INPUT_KEYBOARD;
  inputs[0].ki = {0, 0x4E2D, KEYEVENTF_UNICODE, 0, 0};
  inputs[1].ki = {0, 0x4E2D, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP, 0, 0};
  EXPECT_EQ(SendInput(2, inputs, sizeof(INPUT)), 2U);
  pump();
  step();
}

TEST_F(KeyboardTest, RepeatAndReleaseAreMarkedInTheParameters) {
  for (int times = 0; times < 3; ++times) key_down('A');
  key_up('A');
  step();
}

TEST_F(KeyboardTest, WithAltOrWithoutFocusTheyAreSystemKeys) {
  send_key(VK_MENU, true);
  key('A');
  send_key(VK_MENU, false);
  pump();
  step("with Alt");
  SetFocus(nullptr);
  key('A');
  step("without focus the active window gets them");
  for (const HWND each : {other_, top_}) DestroyWindow(each);
  key('A');
  step("without any window nobody does");
}

TEST_F(KeyboardTest, AltAloneOpensTheMenuAndItsCombinationsAreSystemKeys) {
  recorder().only({WM_KEYUP, WM_SYSKEYDOWN, WM_SYSKEYUP, WM_SYSCOMMAND, WM_CLOSE});
  SetFocus(child_);
  forget();
  for (const int menu : {VK_MENU, VK_F10}) key(menu);
  step("Alt alone, F10");
  for (const bool alt_first : {false, true}) {
    key_down(VK_MENU);
    key_down('X');
    for (const bool alt : {alt_first, !alt_first}) key_up(alt ? int{VK_MENU} : int{'X'});
    step(alt_first ? "Alt goes up first" : "Alt goes up last");
  }
  key_down(VK_MENU);
  key(VK_F4);
  step("Alt+F4");
}

TEST_F(KeyboardTest, StateIsThatOfTheRetrievedMessageAndOfNow) {
  send_key(VK_SHIFT, true);
  EXPECT_NE(GetAsyncKeyState(VK_SHIFT) & 0x8000, 0);
  pump();
  EXPECT_LT(GetKeyState(VK_SHIFT), 0);
  send_key(VK_SHIFT, false);
  EXPECT_LT(GetKeyState(VK_SHIFT), 0) << "not retrieved yet";
  EXPECT_EQ(GetAsyncKeyState(VK_SHIFT) & 0x8000, 0);
  pump();
  EXPECT_GE(GetKeyState(VK_SHIFT), 0);
}

// The character was posted to the window that got the key.
TEST_F(KeyboardTest, FocusMayMoveBetweenKeyAndCharacter) {
  recorder().before_default("top", WM_KEYDOWN, [&] { SetFocus(child_); });
  key_down('A');
  step();
}

}  // namespace
}  // namespace corvane::conformance
