// What a push button needs of the window system, with a small button made here.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

constexpr POINT kInside = {155, 155};
constexpr POINT kOutside = {105, 105};

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
      EXPECT_EQ(GetFocus(), button_);
      EXPECT_EQ(GetCapture(), nullptr) << "it is gone before the command";
    });
    recorder().only({WM_COMMAND, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_CAPTURECHANGED});
    settle();
  }
  // Presses at the first point and lets go at the last.
  void press_along(const std::vector<POINT>& path) {
    press_at(path.front().x, path.front().y);
    for (const POINT& point : path) move_to(point);
    release();
  }
  HWND parent_ = nullptr;
  HWND button_ = nullptr;
  bool pressed_ = false;
};

TEST_F(CommandTest, IsSentWhenTheButtonIsPressedAndReleasedInside) {
  press_along({kInside});
  step("a click");
  press_along({kInside, kOutside});
  step("release outside");
  press_along({kInside, kOutside, kInside});
  step("off and back");
  press_along({kOutside, kInside});
  step("press outside");
  press_at(kInside);
  EnableWindow(button_, FALSE);
  release();
  step("disabled between press and release");
  press_along({kInside});
  step("a disabled button leaves the mouse to its parent");
}

TEST_F(CommandTest, ButtonThatDestroysItsParentInTheCommandIsHarmless) {
  recorder().before_default("parent", WM_COMMAND, [this] { DestroyWindow(parent_); });
  press_along({kInside});
  step();
}

}  // namespace
}  // namespace corvane::conformance
