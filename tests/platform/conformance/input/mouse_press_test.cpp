// Presses, moves, releases, the right button, and leaving.
#include "tests/platform/conformance/support/family_test.h"

namespace corvane::conformance {
namespace {

class MousePressTest : public FamilyTest {
 protected:
  // With the pointer there only these messages are recorded.
  void watch_at(int x, int y, std::set<UINT> messages) {
    move_to(x, y);
    recorder().only(std::move(messages));
    settle();
  }
};

TEST_F(MousePressTest, TellsTheAncestorsAsksForActivationAndTheCursor) {
  watch_at(
      140, 140,
      {WM_PARENTNOTIFY, WM_MOUSEACTIVATE, WM_ACTIVATE, WM_SETFOCUS, WM_SETCURSOR, WM_LBUTTONDOWN});
  press();
  step("on a child of the active window, whose focus does not move");
  release();
  SetActiveWindow(other_);
  settle();
  press();
  step("observed: on a child of an inactive window");
  release();
  move_to(105, 105);
  settle();
  press();
  step("observed: on the active window's own surface");
}

TEST_F(MousePressTest, AnswerDecidesOnActivationAndThePress) {
  EXPECT_EQ(SendMessageW(top_, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(top_),
                         MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN)),
            MA_ACTIVATE);
  watch_at(140, 140, {WM_LBUTTONDOWN, WM_LBUTTONUP});
  for (const int answer : {MA_ACTIVATE, MA_ACTIVATEANDEAT, MA_NOACTIVATE, MA_NOACTIVATEANDEAT}) {
    SetActiveWindow(other_);
    recorder().answer("child", WM_MOUSEACTIVATE, answer);
    settle();
    click(140, 140);
    step("answer " + std::to_string(answer));
  }
}

TEST_F(MousePressTest, FlagsAreTheStateAfterTheEvent) {
  watch_at(105, 105,
           {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP, WM_MBUTTONDOWN,
            WM_MBUTTONUP, WM_MOUSEMOVE});
  send_key(VK_SHIFT, true);
  press();
  press(MOUSEEVENTF_RIGHTDOWN);
  send_key(VK_SHIFT, false);
  send_key(VK_CONTROL, true);
  release();
  press(MOUSEEVENTF_MIDDLEDOWN);
  release(MOUSEEVENTF_RIGHTUP);
  release(MOUSEEVENTF_MIDDLEUP);
  send_key(VK_CONTROL, false);
  pump();
  step();
}

TEST_F(MousePressTest, EachMoveTestsSetsTheCursorAndIsQueued) {
  watch_at(105, 105, {WM_NCHITTEST, WM_SETCURSOR, WM_MOUSEMOVE, WM_LBUTTONDOWN});
  move_to(106, 107);
  step("observed: a move");
  SetCursorPos(110, 110);
  SetCursorPos(115, 112);
  SetCursorPos(118, 117);
  pump();
  step("moves are coalesced");
  SetCursorPos(110, 110);
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  SetCursorPos(115, 115);
  pump();
  step("not across a press");
}

TEST_F(MousePressTest, RightButtonAsksForTheContextMenuUpTheParents) {
  watch_at(140, 145, {WM_RBUTTONDOWN, WM_RBUTTONUP, WM_CONTEXTMENU});
  press(MOUSEEVENTF_RIGHTDOWN);
  release(MOUSEEVENTF_RIGHTUP);
  step();
}

TEST_F(MousePressTest, RetrievedMessageHasTheScreenPositionAndTime) {
  move_to(105, 105);
  advance(40);
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  MSG message{};
  ASSERT_NE(PeekMessageW(&message, nullptr, WM_LBUTTONDOWN, WM_LBUTTONDOWN, PM_REMOVE), 0);
  EXPECT_EQ(text_of(message.pt), "105,105");
  EXPECT_EQ(message.time, GetTickCount());
  EXPECT_LT(GetKeyState(VK_LBUTTON), 0);
  EXPECT_NE(GetAsyncKeyState(VK_LBUTTON) & 0x8000, 0);
}

TEST_F(MousePressTest, MovesOfInputAreRelativeOrShareOfTheScreen) {
  move_to(105, 105);
  INPUT input{INPUT_MOUSE, {{3, -4, 0, MOUSEEVENTF_MOVE, 0, 0}}};
  EXPECT_EQ(SendInput(1, &input, sizeof(input)), 1U);
  POINT point{};
  GetCursorPos(&point);
  EXPECT_EQ(text_of(point), "108,101");
  input.mi = {32768, 16384, 0, MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, 0, 0};
  EXPECT_EQ(SendInput(1, &input, sizeof(input)), 1U);
  GetCursorPos(&point);
  EXPECT_EQ(text_of(point), "640,200");
  EXPECT_EQ(SendInput(1, &input, sizeof(input) - 1), 0U);
}

class MouseLeaveTest : public MousePressTest {
 protected:
  static void ask(HWND window, DWORD more_flags = 0) {
    TRACKMOUSEEVENT request{sizeof(TRACKMOUSEEVENT), TME_LEAVE | more_flags, window, 0};
    EXPECT_NE(TrackMouseEvent(&request), 0);
  }
  // From the child into the top-level window.
  void leave() {
    move_to(140, 140);
    move_to(105, 105);
  }
};

TEST_F(MouseLeaveTest, ComesOnceAndMustBeAskedForAgain) {
  watch_at(140, 140, {WM_MOUSELEAVE});
  ask(child_);
  move_to(150, 150);
  step("still inside");
  leave();
  step("left");
  leave();
  step("left again");
  move_to(140, 140);
  ask(child_);
  leave();
  step("asked for again");
  move_to(122, 122);
  ask(parent_);
  move_to(140, 140);
  step("entering a child leaves the parent");
  ask(child_);
  ask(child_, TME_CANCEL);
  leave();
  step("cancelled");
}

}  // namespace
}  // namespace corvane::conformance
