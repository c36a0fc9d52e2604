// Dragging a window by the system command for its caption.
#include "tests/platform/conformance/support/window_test.h"
#include "tests/support/own_system.h"

namespace corvane::conformance {
namespace {

class DragTest : public WindowTest {
 protected:
  DragTest() {
    drag_on_press("pop");
    recorder().only({WM_GETMINMAXINFO, WM_ENTERSIZEMOVE, WM_MOVING, WM_WINDOWPOSCHANGING,
                     WM_WINDOWPOSCHANGED, WM_MOVE, WM_CAPTURECHANGED, WM_EXITSIZEMOVE,
                     WM_LBUTTONUP});
  }

  // One action of the script when the drag begins and one after each move.
  void drag_on_press(const std::string& name) {
    recorder().on(name, WM_LBUTTONDOWN, [this](const Message& sent) -> std::optional<LRESULT> {
      EXPECT_EQ(SendMessageW(sent.window, WM_SYSCOMMAND, SC_MOVE | HTCAPTION, 0), 0);
      ended_ = true;
      return 0;
    });
    recorder().before_default(name, WM_ENTERSIZEMOVE, [this] { next_action(); });
    recorder().before_default(name, WM_MOVING, [this] { next_action(); });
  }
  void next_action() {
    EXPECT_FALSE(ended_);
    if (!script_.empty()) std::exchange(script_, {script_.begin() + 1, script_.end()}).front()();
  }
  using Script = std::vector<std::function<void()>>;
  static std::function<void()> move_pointer(int x, int y) {
    return [x, y] { SetCursorPos(x, y); };
  }
  static void button_up() { send_mouse(MOUSEEVENTF_LEFTUP); }
  static std::function<void()> type(int virtual_key) {
    return [virtual_key] {
      send_key(virtual_key, true);
      send_key(virtual_key, false);
    };
  }
  void drag(const std::string& what, Script script) {
    script_ = std::move(script);
    ended_ = false;
    move_to(110, 110);
    forget();
    press();
    EXPECT_TRUE(script_.empty());
    EXPECT_TRUE(ended_);
    step(what);
  }

  const HWND popup_ = settled_popup("pop", 100, 100, 100, 80);
  Script script_;
  bool ended_ = false;
};

TEST_F(DragTest, MovesByThePointersTravelUntilTheRelease) {
  drag("release without a move", {[] {
         send_key(VK_CONTROL, true);
         button_up();
       }});
  EXPECT_LT(GetKeyState(VK_CONTROL), 0);
  drag("moves", {[] {
                   send_key(VK_CONTROL, false);
                   SetCursorPos(130, 115);
                 },
                 [&] {
                   EXPECT_EQ(GetCapture(), popup_);
                   EXPECT_EQ(GetMessagePos(), DWORD(MAKELONG(130, 115)));
                   SetCursorPos(110, 120);
                 },
                 button_up});
  EXPECT_GE(GetKeyState(VK_CONTROL), 0) << "let go in the drag";
}

TEST_F(DragTest, MovingHandlerMayChangeTheRectangle) {
  recorder().on("pop", WM_MOVING, [&](const Message& sent) -> std::optional<LRESULT> {
    *reinterpret_cast<RECT*>(sent.lparam) = {300, 200, 400, 280};
    next_action();
    return TRUE;
  });
  drag("", {move_pointer(130, 115), button_up});
  MoveWindow(popup_, 100, 100, 100, 80, TRUE);
  settle();
  recorder().on("pop", WM_MOVING, [&](const Message& sent) -> std::optional<LRESULT> {
    *reinterpret_cast<RECT*>(sent.lparam) = {INT_MIN, 200, INT_MAX, 280};
    next_action();
    return TRUE;
  });
  drag("as wide as can be", {move_pointer(130, 115), button_up});
}

TEST_F(DragTest, ObservedKeysEndItAndTheReleaseIsDelivered) {
  drag("Escape brings it back", {move_pointer(130, 115), type(VK_ESCAPE)});
  move_to(150, 150);
  release();
  step("then the release");
  drag("Return leaves it", {move_pointer(130, 115), type(VK_RETURN)});
  release();
  step("then its release");
}

TEST_F(DragTest, ObservedThatWithoutAButtonItDragsUntilPressAndRelease) {
  script_ = {move_pointer(130, 115), [] {
               send_mouse(MOUSEEVENTF_LEFTDOWN);
               button_up();
             }};
  move_to(110, 110);
  step("", SendMessageW(popup_, WM_SYSCOMMAND, SC_MOVE | HTCAPTION, 0));
}

// What moves is the native window, of which there is none here.
TEST_F(DragTest, WindowThatFillsTheScreenStaysAndFollowsItsSize) {
  MoveWindow(popup_, 0, 0, 1280, 800, TRUE);
  settle();
  drag("a drag", {[] {
         SetCursorPos(130, 115);
         button_up();
       }});
  recorder().before_default("pop", WM_SIZE, type(VK_ESCAPE));
  drag("cancelled after a change of size", {[this] { own().display.resize({400, 250}); }});
  drag("the next one", {[] {
         SetCursorPos(130, 115);
         button_up();
       }});
}

TEST_F(DragTest, WhatIsDrawnIsShownWhileMessagesKeepComing) {
  int left = 100;
  recorder().before_default("pop", WM_USER, [&] {
    own().display.advance(20);
    draw(popup_, {0, 0, 10, 10}, left % 2 == 0 ? kRed : kBlack);
    if (--left > 0) PostMessageW(popup_, WM_USER, 0, 0);
  });
  const int before = own().display.presents();
  drag("", {[&] {
         PostMessageW(popup_, WM_USER, 0, 0);
         button_up();
       }});
  EXPECT_GE(own().display.presents(), before + 99);
}

TEST_F(DragTest, PressOnACaptionDragsToo) {
  recorder().answer("pop", WM_NCHITTEST, HTCAPTION);
  script_ = {move_pointer(125, 118), button_up};
  move_to(110, 110);
  forget();
  press();
  step();
}

TEST_F(DragTest, ObservedThatAChildIsDraggedInItsParent) {
  settled_child("child", popup_, 5, 5, 30, 30);
  drag_on_press("child");
  drag("", {move_pointer(125, 118), button_up});
}

}  // namespace
}  // namespace corvane::conformance
