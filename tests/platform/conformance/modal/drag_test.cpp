// Dragging a window by the system command for its caption.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

constexpr WPARAM drag_command = SC_MOVE | HTCAPTION;

class DragTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    popup_ = settled_popup("pop", 100, 100, 100, 80);
    drag_on_press("pop");
    recorder().only({WM_GETMINMAXINFO, WM_ENTERSIZEMOVE, WM_MOVING, WM_WINDOWPOSCHANGING,
                     WM_WINDOWPOSCHANGED, WM_MOVE, WM_CAPTURECHANGED, WM_EXITSIZEMOVE,
                     WM_LBUTTONUP});
  }

  // One step of the script when the drag begins and one after each move.
  void drag_on_press(const std::string& name) {
    recorder().on(name, WM_LBUTTONDOWN, [this](const Message& sent) -> std::optional<LRESULT> {
      result_ = SendMessageW(sent.window, WM_SYSCOMMAND, drag_command, 0);
      returned_ = true;
      return 0;
    });
    recorder().before_default(name, WM_ENTERSIZEMOVE, [this] { next_step(); });
    recorder().before_default(name, WM_MOVING, [this] { next_step(); });
  }
  void next_step() {
    EXPECT_FALSE(returned_);
    if (step_ < script_.size()) script_[step_++]();
  }
  static std::function<void()> move_pointer(int x, int y) {
    return [x, y] { SetCursorPos(x, y); };
  }
  static std::function<void()> button_up() {
    return [] { send_mouse(MOUSEEVENTF_LEFTUP); };
  }
  static std::function<void()> key(int virtual_key) {
    return [virtual_key] {
      send_key(virtual_key, true);
      send_key(virtual_key, false);
    };
  }
  void drag(std::vector<std::function<void()>> script) {
    script_ = std::move(script);
    move_to(110, 110);
    recorder().clear();
    press();
    EXPECT_EQ(step_, script_.size());
    EXPECT_TRUE(returned_);
    EXPECT_EQ(result_, 0);
  }

  HWND popup_ = nullptr;
  std::vector<std::function<void()>> script_;
  std::size_t step_ = 0;
  bool returned_ = false;
  LRESULT result_ = -1;
};

TEST_F(DragTest, MovesByThePointersTravelUntilTheRelease) {
  drag({move_pointer(130, 115), move_pointer(60, 50), button_up()});
  EXPECT_TRUE(log_is(
      "pop WM_GETMINMAXINFO > WM_ENTERSIZEMOVE >"
      "WM_MOVING 120,105,220,185 > WM_WINDOWPOSCHANGING > WM_WINDOWPOSCHANGED { WM_MOVE 120,105 } >"
      "WM_MOVING 50,40,150,120 > WM_WINDOWPOSCHANGING > WM_WINDOWPOSCHANGED { WM_MOVE 50,40 } >"
      "WM_CAPTURECHANGED none > WM_EXITSIZEMOVE"));
  EXPECT_EQ(text_of(window_rect(popup_)), "50,40,150,120");
}

TEST_F(DragTest, ReleaseWithoutAMove) {
  drag({button_up()});
  EXPECT_TRUE(
      log_is("pop WM_GETMINMAXINFO > WM_ENTERSIZEMOVE > WM_CAPTURECHANGED none > WM_EXITSIZEMOVE"));
  EXPECT_EQ(text_of(window_rect(popup_)), "100,100,200,180");
}

TEST_F(DragTest, WindowHasTheCaptureMeanwhile) {
  HWND captured = nullptr;
  drag({move_pointer(120, 120), [&] {
          captured = GetCapture();
          send_mouse(MOUSEEVENTF_LEFTUP);
        }});
  EXPECT_EQ(captured, popup_);
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(DragTest, MovingHandlerMayChangeTheRectangle) {
  recorder().on("pop", WM_MOVING, [&](const Message& sent) -> std::optional<LRESULT> {
    *reinterpret_cast<RECT*>(sent.lparam) = {300, 200, 400, 280};
    next_step();
    return TRUE;
  });
  drag({move_pointer(130, 115), button_up()});
  EXPECT_EQ(text_of(window_rect(popup_)), "300,200,400,280");
}

class ObservedDrag : public DragTest {};

TEST_F(ObservedDrag, EscapeBringsItBackAndTheReleaseIsDelivered) {
  drag({move_pointer(130, 115), key(VK_ESCAPE)});
  EXPECT_EQ(text_of(window_rect(popup_)), "100,100,200,180");
  recorder().clear();
  move_to(150, 150);
  release();
  EXPECT_EQ(recorder().count("pop", WM_LBUTTONUP), 1);
}

TEST_F(ObservedDrag, ReturnEndsItWhereItIsAndTheReleaseIsDelivered) {
  drag({move_pointer(130, 115), key(VK_RETURN)});
  EXPECT_EQ(text_of(window_rect(popup_)), "120,105,220,185");
  recorder().clear();
  release();
  EXPECT_EQ(recorder().count("pop", WM_LBUTTONUP), 1);
}

TEST_F(ObservedDrag, WithoutAButtonItDragsUntilPressAndRelease) {
  script_ = {move_pointer(130, 115), [] {
               send_mouse(MOUSEEVENTF_LEFTDOWN);
               send_mouse(MOUSEEVENTF_LEFTUP);
             }};
  move_to(110, 110);
  EXPECT_EQ(SendMessageW(popup_, WM_SYSCOMMAND, drag_command, 0), 0);
  EXPECT_EQ(text_of(window_rect(popup_)), "120,105,220,185");
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(ObservedDrag, ChildIsDraggedInItsParent) {
  const HWND child = settled_child("child", popup_, 5, 5, 30, 30);
  drag_on_press("child");
  recorder().only({WM_MOVING, WM_MOVE});
  drag({move_pointer(125, 118), button_up()});
  EXPECT_TRUE(log_is("child WM_MOVING 120,113,150,143 > WM_MOVE 20,13"));
  EXPECT_EQ(text_of(window_rect(child)), "120,113,150,143");
  EXPECT_EQ(text_of(window_rect(popup_)), "100,100,200,180");
}

TEST_F(DragTest, WindowDestroyedWhileDraggedEndsTheDrag) {
  recorder().only({WM_NCDESTROY});
  script_ = {move_pointer(130, 115), [&] { DestroyWindow(popup_); }};
  move_to(110, 110);
  press();
  EXPECT_TRUE(returned_);
  EXPECT_EQ(IsWindow(popup_), 0);
  EXPECT_EQ(GetCapture(), nullptr);
}

}  // namespace
}  // namespace corvane::conformance
