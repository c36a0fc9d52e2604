// Presses, moves, releases, the right button, and leaving.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class MousePressTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    other_ = settled_popup("other", 500, 500, 50, 50);
    top_ = settled_popup("top", 100, 100, 200, 200);
    parent_ = settled_child("parent", top_, 20, 20, 100, 100);
    child_ = settled_child("child", parent_, 10, 10, 50, 50);
  }
  HWND other_ = nullptr;
  HWND top_ = nullptr;
  HWND parent_ = nullptr;
  HWND child_ = nullptr;
};
class ObservedMousePress : public MousePressTest {};

TEST_F(MousePressTest, PressOnAChildTellsItsAncestors) {
  move_to(140, 140);
  recorder().only({WM_PARENTNOTIFY});
  recorder().clear();
  press();
  EXPECT_TRUE(
      log_is("parent WM_PARENTNOTIFY WM_LBUTTONDOWN 20,20 >"
             "top WM_PARENTNOTIFY WM_LBUTTONDOWN 40,40",
             Nesting::ignored));
}

TEST_F(MousePressTest, PressOnAChildOfTheActiveWindow) {
  move_to(140, 140);
  recorder().clear();
  recorder().only({WM_MOUSEACTIVATE, WM_ACTIVATE, WM_SETFOCUS, WM_LBUTTONDOWN});
  press();
  EXPECT_TRUE(
      log_is("child WM_MOUSEACTIVATE top 1 WM_LBUTTONDOWN {"
             "  parent WM_MOUSEACTIVATE top 1 WM_LBUTTONDOWN {"
             "    top WM_MOUSEACTIVATE top 1 WM_LBUTTONDOWN } } >"
             "child (q) WM_LBUTTONDOWN 10,10 LBUTTON"));
  EXPECT_EQ(GetFocus(), top_) << "a press does not move the focus";
}

TEST_F(ObservedMousePress, OrderOfAPressOnAChildOfAnInactiveWindow) {
  SetActiveWindow(other_);
  move_to(140, 140);
  recorder().clear();
  recorder().only({WM_PARENTNOTIFY, WM_MOUSEACTIVATE, WM_ACTIVATE, WM_SETCURSOR, WM_LBUTTONDOWN});
  recorder().only_windows({"child", "parent", "top"});
  press();
  EXPECT_TRUE(
      log_is("parent WM_PARENTNOTIFY > top WM_PARENTNOTIFY >"
             "child WM_MOUSEACTIVATE > parent WM_MOUSEACTIVATE > top WM_MOUSEACTIVATE >"
             "top WM_ACTIVATE 2 other >"
             "child WM_SETCURSOR child 1 WM_LBUTTONDOWN > parent WM_SETCURSOR child >"
             "top WM_SETCURSOR child > child (q) WM_LBUTTONDOWN",
             Nesting::ignored));
}

TEST_F(ObservedMousePress, PressOnTheActiveWindowsOwnSurfaceAsksNothing) {
  move_to(105, 105);
  recorder().only({WM_MOUSEACTIVATE, WM_ACTIVATE, WM_LBUTTONDOWN});
  recorder().clear();
  press();
  EXPECT_TRUE(log_is("top (q) WM_LBUTTONDOWN 5,5"));
}

TEST_F(MousePressTest, ClickActivatesAndGivesTheFocusToTheTopLevelWindow) {
  SetActiveWindow(other_);
  settle();
  recorder().only({WM_ACTIVATE, WM_SETFOCUS});
  press_at(140, 140);
  EXPECT_TRUE(log_is("other WM_ACTIVATE 0 top > top WM_ACTIVATE 2 other { WM_SETFOCUS other }"));
  EXPECT_EQ(GetActiveWindow(), top_);
  EXPECT_EQ(GetFocus(), top_);
}

struct ActivateAnswer {
  int answer;
  bool activates;
  bool press_arrives;
};

class MouseActivateTest : public MousePressTest,
                          public testing::WithParamInterface<ActivateAnswer> {};

TEST_P(MouseActivateTest, DecidesOnActivationAndThePress) {
  SetActiveWindow(other_);
  recorder().answer("child", WM_MOUSEACTIVATE, GetParam().answer);
  recorder().only({WM_LBUTTONDOWN, WM_LBUTTONUP});
  settle();
  click(140, 140);
  EXPECT_EQ(GetActiveWindow() == top_, GetParam().activates);
  EXPECT_TRUE(log_is(GetParam().press_arrives ? "child (q) WM_LBUTTONDOWN > (q) WM_LBUTTONUP"
                                              : "child (q) WM_LBUTTONUP"));
}

INSTANTIATE_TEST_SUITE_P(, MouseActivateTest,
                         testing::Values(ActivateAnswer{MA_ACTIVATE, true, true},
                                         ActivateAnswer{MA_ACTIVATEANDEAT, true, false},
                                         ActivateAnswer{MA_NOACTIVATE, false, true},
                                         ActivateAnswer{MA_NOACTIVATEANDEAT, false, false}));

TEST_F(MousePressTest, DefaultAnswerToMouseActivateIsToActivate) {
  EXPECT_EQ(SendMessageW(top_, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(top_),
                         MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN)),
            MA_ACTIVATE);
}

TEST_F(MousePressTest, FlagsAreTheStateAfterTheEvent) {
  move_to(105, 105);
  recorder().only({WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP, WM_MOUSEMOVE});
  recorder().clear();
  send_key(VK_SHIFT, true);
  press();
  press(MOUSEEVENTF_RIGHTDOWN);
  send_key(VK_SHIFT, false);
  send_key(VK_CONTROL, true);
  release();
  release(MOUSEEVENTF_RIGHTUP);
  send_key(VK_CONTROL, false);
  pump();
  EXPECT_TRUE(
      log_is("top (q) WM_LBUTTONDOWN 5,5 LBUTTON|SHIFT >"
             "(q) WM_RBUTTONDOWN 5,5 LBUTTON|RBUTTON|SHIFT >"
             "(q) WM_LBUTTONUP 5,5 RBUTTON|CONTROL > (q) WM_RBUTTONUP 5,5 CONTROL"));
}

TEST_F(ObservedMousePress, EachMoveTestsSetsTheCursorAndIsQueued) {
  move_to(105, 105);
  recorder().only({WM_NCHITTEST, WM_SETCURSOR, WM_MOUSEMOVE});
  recorder().clear();
  SetCursorPos(106, 107);
  pump();
  EXPECT_TRUE(
      log_is("top WM_NCHITTEST 106,107 > WM_SETCURSOR top 1 WM_MOUSEMOVE >"
             "(q) WM_MOUSEMOVE 6,7 -"));
}

TEST_F(MousePressTest, MovesAreCoalesced) {
  move_to(105, 105);
  recorder().only({WM_MOUSEMOVE});
  recorder().clear();
  SetCursorPos(110, 110);
  SetCursorPos(115, 112);
  SetCursorPos(118, 117);
  pump();
  EXPECT_TRUE(log_is("top (q) WM_MOUSEMOVE 18,17"));
  POINT point{};
  GetCursorPos(&point);
  EXPECT_EQ(point.x, 118);
  EXPECT_EQ(point.y, 117);
}

TEST_F(MousePressTest, MovesAreNotCoalescedAcrossAPress) {
  move_to(105, 105);
  recorder().only({WM_MOUSEMOVE, WM_LBUTTONDOWN});
  recorder().clear();
  SetCursorPos(110, 110);
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  SetCursorPos(115, 115);
  pump();
  EXPECT_TRUE(
      log_is("top (q) WM_MOUSEMOVE 10,10 - > (q) WM_LBUTTONDOWN 10,10 >"
             "(q) WM_MOUSEMOVE 15,15 LBUTTON"));
}

TEST_F(MousePressTest, RightButtonAsksForTheContextMenuUpTheParents) {
  move_to(140, 145);
  recorder().only({WM_RBUTTONDOWN, WM_RBUTTONUP, WM_CONTEXTMENU});
  recorder().clear();
  press(MOUSEEVENTF_RIGHTDOWN);
  release(MOUSEEVENTF_RIGHTUP);
  EXPECT_TRUE(
      log_is("child (q) WM_RBUTTONDOWN 10,15 RBUTTON > (q) WM_RBUTTONUP 10,15 - {"
             "  WM_CONTEXTMENU child 140,145 {"
             "    parent WM_CONTEXTMENU child 140,145 {"
             "      top WM_CONTEXTMENU child 140,145 } } }"));
}

TEST_F(MousePressTest, MiddleButtonIsDelivered) {
  move_to(105, 105);
  recorder().only({WM_MBUTTONDOWN, WM_MBUTTONUP});
  recorder().clear();
  press(MOUSEEVENTF_MIDDLEDOWN);
  release(MOUSEEVENTF_MIDDLEUP);
  EXPECT_TRUE(log_is("top (q) WM_MBUTTONDOWN 5,5 MBUTTON > (q) WM_MBUTTONUP 5,5 -"));
}

TEST_F(MousePressTest, RetrievedMessageHasTheScreenPositionAndTime) {
  move_to(105, 105);
  advance(40);
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  MSG message{};
  ASSERT_NE(PeekMessageW(&message, nullptr, WM_LBUTTONDOWN, WM_LBUTTONDOWN, PM_REMOVE), 0);
  EXPECT_EQ(message.pt.x, 105);
  EXPECT_EQ(message.pt.y, 105);
  EXPECT_EQ(message.time, GetTickCount());
  EXPECT_LT(GetKeyState(VK_LBUTTON), 0);
  EXPECT_NE(GetAsyncKeyState(VK_LBUTTON) & 0x8000, 0);
}

class MouseLeaveTest : public MousePressTest {
 protected:
  static void ask(HWND window) {
    TRACKMOUSEEVENT request{};
    request.cbSize = sizeof(request);
    request.dwFlags = TME_LEAVE;
    request.hwndTrack = window;
    EXPECT_NE(TrackMouseEvent(&request), 0);
  }
};

TEST_F(MouseLeaveTest, ComesOnceAndMustBeAskedForAgain) {
  move_to(140, 140);
  recorder().only({WM_MOUSELEAVE});
  recorder().clear();
  ask(child_);
  move_to(150, 150);
  EXPECT_EQ(recorder().count("child", WM_MOUSELEAVE), 0) << "still inside";
  move_to(105, 105);
  EXPECT_EQ(recorder().count("child", WM_MOUSELEAVE), 1);
  move_to(140, 140);
  move_to(105, 105);
  EXPECT_EQ(recorder().count("child", WM_MOUSELEAVE), 1);
  move_to(140, 140);
  ask(child_);
  move_to(105, 105);
  EXPECT_EQ(recorder().count("child", WM_MOUSELEAVE), 2);
}

TEST_F(MouseLeaveTest, EnteringAChildLeavesTheParent) {
  move_to(122, 122);
  recorder().only({WM_MOUSELEAVE});
  recorder().clear();
  ask(parent_);
  move_to(140, 140);
  EXPECT_EQ(recorder().count("parent", WM_MOUSELEAVE), 1);
}

TEST_F(MouseLeaveTest, CanBeCancelled) {
  move_to(140, 140);
  recorder().only({WM_MOUSELEAVE});
  ask(child_);
  TRACKMOUSEEVENT request{};
  request.cbSize = sizeof(request);
  request.dwFlags = TME_LEAVE | TME_CANCEL;
  request.hwndTrack = child_;
  TrackMouseEvent(&request);
  move_to(105, 105);
  EXPECT_EQ(recorder().count("child", WM_MOUSELEAVE), 0);
}

}  // namespace
}  // namespace corvane::conformance
