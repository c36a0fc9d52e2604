// Handlers that destroy their own window, its parent or its owner in the middle of each kind of
// message. Afterwards the victim is gone and everything else works.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

// owner (pop-up) <- popup (owned) -> parent (child) -> target (child); beside them a spare pop-up.
class DestroyInsideTest;

struct Trigger {
  const char* label;
  UINT message;
  const char* receiver;  // whose handler destroys
  void (*cause)(DestroyInsideTest&);
};

using DestroyInsideCase = std::tuple<Trigger, const char*>;  // and the victim

class DestroyInsideTest : public WindowTest, public testing::WithParamInterface<DestroyInsideCase> {
 public:
  using WindowTest::advance;
  using WindowTest::create;
  using WindowTest::move_to;
  using WindowTest::press;
  using WindowTest::pump;
  using WindowTest::recorder;
  using WindowTest::release;
  using WindowTest::send_key;
  using WindowTest::send_mouse;
  using WindowTest::window;

  HWND target() const { return window("target"); }
  HWND popup() const { return window("popup"); }

 protected:
  void SetUp() override {
    WindowTest::SetUp();
    settled_popup("spare", 600, 600, 100, 100);
    const HWND owner = settled_popup("owner", 500, 50, 100, 100);
    const HWND popup = settled_popup("popup", 100, 100, 300, 300, owner);
    const HWND parent = settled_child("parent", popup, 50, 50, 200, 200);
    settled_child("target", parent, 50, 50, 100, 100);
    settled_child("nephew", target(), 10, 10, 20, 20);
    settled_child("sibling", parent, 0, 0, 20, 20);
  }

  void expect_everything_else_works() {
    recorder().remove_hooks();
    recorder().record_everything();
    ReleaseCapture();
    send_mouse(MOUSEEVENTF_LEFTUP);
    pump();
    advance(2000);
    pump();
    recorder().clear();
    const HWND fresh = settled_popup("fresh", 620, 620, 60, 60);
    recorder().only({WM_LBUTTONDOWN, WM_KEYDOWN, WM_PAINT});
    press_at(630, 640);
    release();
    send_key(VK_F1, true);
    send_key(VK_F1, false);
    InvalidateRect(fresh, nullptr, TRUE);
    pump();
    EXPECT_TRUE(log_is("fresh (q) WM_LBUTTONDOWN 10,20 > (q) WM_KEYDOWN > (q) WM_PAINT 0,0,60,60"));
    EXPECT_EQ(pixel(630, 640), RGB(255, 255, 255));
  }
};

TEST_P(DestroyInsideTest, IsSurvived) {
  const auto& [trigger, victim] = GetParam();
  bool armed = true;
  recorder().on(trigger.receiver, trigger.message,
                [&, name = std::string(victim)](const Message& sent) -> std::optional<LRESULT> {
                  if (!std::exchange(armed, false)) return std::nullopt;
                  const HWND doomed = name == "self" ? sent.window : window(name);
                  DestroyWindow(doomed);
                  return std::nullopt;  // the default handling gets a window that is gone
                });
  trigger.cause(*this);
  pump();
  EXPECT_FALSE(armed) << "the message never came";
  const std::string gone = std::string(victim) == "self" ? trigger.receiver : victim;
  EXPECT_EQ(IsWindow(window(gone)), 0);
  if (gone == "owner" || gone == "popup") {
    EXPECT_EQ(IsWindow(window("popup")), 0);
    EXPECT_EQ(IsWindow(window("parent")), 0);
  }
  expect_everything_else_works();
}

using Test = DestroyInsideTest;

void make_target_child(Test& test) {
  test.create("new_child", {.parent = test.target(), .style = WS_CHILD | WS_VISIBLE, .id = 4});
}

void press_target(Test& test) {
  SetCursorPos(270, 270);
  Test::send_mouse(MOUSEEVENTF_LEFTDOWN);
  test.pump();
}

void resize_target(Test& test) { MoveWindow(test.target(), 40, 40, 120, 120, TRUE); }
void focus_target(Test& test) { SetFocus(test.target()); }
void hide_target(Test& test) { ShowWindow(test.target(), SW_HIDE); }
void disable_target(Test& test) { EnableWindow(test.target(), FALSE); }
void paint_target(Test& test) {
  InvalidateRect(test.target(), nullptr, TRUE);
  test.pump();
}
void restyle_target(Test& test) {
  SetWindowLongW(test.target(), GWL_STYLE, static_cast<LONG>(WS_CHILD | WS_VISIBLE | WS_BORDER));
}

const Trigger child_triggers[] = {
    {"NcCreate", WM_NCCREATE, "new_child", make_target_child},
    {"NcCalcSizeAtCreation", WM_NCCALCSIZE, "new_child", make_target_child},
    {"Create", WM_CREATE, "new_child", make_target_child},
    {"FirstSize", WM_SIZE, "new_child", make_target_child},
    {"FirstMove", WM_MOVE, "new_child", make_target_child},
    {"FirstShow", WM_SHOWWINDOW, "new_child", make_target_child},
    {"FirstErase", WM_ERASEBKGND, "new_child", make_target_child},
    {"ParentNotifyOfCreation", WM_PARENTNOTIFY, "target", make_target_child},
    {"ParentNotifyOfDestruction", WM_PARENTNOTIFY, "target",
     [](Test& test) { DestroyWindow(test.window("nephew")); }},
    {"ParentNotifyOfPress", WM_PARENTNOTIFY, "parent", press_target},
    {"Size", WM_SIZE, "target", resize_target},
    {"Move", WM_MOVE, "target", resize_target},
    {"PositionChanging", WM_WINDOWPOSCHANGING, "target", resize_target},
    {"PositionChanged", WM_WINDOWPOSCHANGED, "target", resize_target},
    {"NcCalcSize", WM_NCCALCSIZE, "target", resize_target},
    {"Hide", WM_SHOWWINDOW, "target", hide_target},
    {"HidePositionChanging", WM_WINDOWPOSCHANGING, "target", hide_target},
    {"HidePositionChanged", WM_WINDOWPOSCHANGED, "target", hide_target},
    {"EraseOfParentOnHide", WM_ERASEBKGND, "parent", hide_target},
    {"Erase", WM_ERASEBKGND, "target", paint_target},
    {"Paint", WM_PAINT, "target", paint_target},
    {"PaintSent", WM_PAINT, "target",
     [](Test& test) {
       InvalidateRect(test.target(), nullptr, TRUE);
       UpdateWindow(test.target());
     }},
    {"PaintOfAllChildren", WM_PAINT, "target",
     [](Test& test) {
       RedrawWindow(test.popup(), nullptr, nullptr,
                    RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
     }},
    {"SetFocus", WM_SETFOCUS, "target", focus_target},
    {"KillFocus", WM_KILLFOCUS, "target",
     [](Test& test) {
       SetFocus(test.target());
       SetFocus(test.window("sibling"));
     }},
    {"KillFocusByActivation", WM_KILLFOCUS, "target",
     [](Test& test) {
       SetFocus(test.target());
       SetActiveWindow(test.window("spare"));
     }},
    {"MouseActivate", WM_MOUSEACTIVATE, "target", press_target},
    {"MouseActivateOfParent", WM_MOUSEACTIVATE, "parent", press_target},
    {"SetCursor", WM_SETCURSOR, "target", press_target},
    {"HitTest", WM_NCHITTEST, "target", press_target},
    {"MouseMove", WM_MOUSEMOVE, "target", press_target},
    {"ButtonDown", WM_LBUTTONDOWN, "target", press_target},
    {"ButtonUp", WM_LBUTTONUP, "target",
     [](Test& test) {
       press_target(test);
       test.release();
     }},
    {"ContextMenu", WM_CONTEXTMENU, "target",
     [](Test& test) {
       SetCursorPos(270, 270);
       test.press(MOUSEEVENTF_RIGHTDOWN);
       test.release(MOUSEEVENTF_RIGHTUP);
     }},
    {"Wheel", WM_MOUSEWHEEL, "target",
     [](Test& test) {
       SetCursorPos(270, 270);
       Test::send_mouse(MOUSEEVENTF_WHEEL, 120);
       test.pump();
     }},
    {"CaptureChanged", WM_CAPTURECHANGED, "target",
     [](Test& test) {
       SetCapture(test.target());
       SetCapture(test.window("sibling"));
     }},
    {"CaptureReleased", WM_CAPTURECHANGED, "target",
     [](Test& test) {
       SetCapture(test.target());
       ReleaseCapture();
     }},
    {"CapturedMove", WM_MOUSEMOVE, "target",
     [](Test& test) {
       SetCapture(test.target());
       test.move_to(10, 10);
     }},
    {"Timer", WM_TIMER, "target",
     [](Test& test) {
       SetTimer(test.target(), 1, 10, nullptr);
       SetTimer(test.target(), 2, 10, nullptr);
       test.advance(30);
       test.pump();
     }},
    {"KeyDown", WM_KEYDOWN, "target",
     [](Test& test) {
       SetFocus(test.target());
       Test::send_key('A', true);
       test.pump();
     }},
    {"Char", WM_CHAR, "target",
     [](Test& test) {
       SetFocus(test.target());
       Test::send_key('A', true);
       Test::send_key('A', false);
       test.pump();
     }},
    {"KeyUp", WM_KEYUP, "target",
     [](Test& test) {
       SetFocus(test.target());
       Test::send_key('A', true);
       Test::send_key('A', false);
       test.pump();
     }},
    {"Enable", WM_ENABLE, "target", disable_target},
    {"CancelMode", WM_CANCELMODE, "target", disable_target},
    {"KillFocusOnDisable", WM_KILLFOCUS, "target",
     [](Test& test) {
       SetFocus(test.target());
       EnableWindow(test.target(), FALSE);
     }},
    {"StyleChanging", WM_STYLECHANGING, "target", restyle_target},
    {"StyleChanged", WM_STYLECHANGED, "target", restyle_target},
    {"SetText", WM_SETTEXT, "target", [](Test& test) { SetWindowTextW(test.target(), L"x"); }},
    {"Destroy", WM_DESTROY, "target", [](Test& test) { DestroyWindow(test.target()); }},
    {"NcDestroy", WM_NCDESTROY, "target", [](Test& test) { DestroyWindow(test.target()); }},
    {"NephewsDestroy", WM_DESTROY, "nephew", [](Test& test) { DestroyWindow(test.target()); }},
    {"NephewsNcDestroy", WM_NCDESTROY, "nephew", [](Test& test) { DestroyWindow(test.target()); }},
    {"Posted", WM_USER, "target",
     [](Test& test) {
       PostMessageW(test.target(), WM_USER, 0, 0);
       PostMessageW(test.target(), WM_USER, 0, 0);
       test.pump();
     }},
    {"Sent", WM_USER, "target", [](Test& test) { SendMessageW(test.target(), WM_USER, 0, 0); }},
    {"Close", WM_CLOSE, "target", [](Test& test) { SendMessageW(test.target(), WM_CLOSE, 0, 0); }},
    {"ChildActivate", WM_CHILDACTIVATE, "sibling",
     [](Test& test) {
       SetWindowPos(test.window("sibling"), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
     }},
};

INSTANTIATE_TEST_SUITE_P(Child, DestroyInsideTest,
                         testing::Combine(testing::ValuesIn(child_triggers),
                                          testing::Values("self", "parent", "popup", "owner")),
                         [](const auto& instance) {
                           return std::string(std::get<0>(instance.param).label) + "_" +
                                  std::get<1>(instance.param);
                         });

void activate_spare(Test& test) { SetActiveWindow(test.window("spare")); }
void reactivate_popup(Test& test) {
  SetActiveWindow(test.window("spare"));
  SetActiveWindow(test.popup());
}
void press_inactive_popup(Test& test) {
  SetActiveWindow(test.window("spare"));
  SetCursorPos(110, 110);
  Test::send_mouse(MOUSEEVENTF_LEFTDOWN);
  test.pump();
}
void hide_popup(Test& test) { ShowWindow(test.popup(), SW_HIDE); }
void make_popup(Test& test) {
  test.create(
      "new_popup",
      {.parent = test.popup(), .style = WS_POPUP | WS_VISIBLE, .place = {.x = 10, .y = 10}});
}
void drag_popup(Test& test) { SendMessageW(test.popup(), WM_SYSCOMMAND, SC_MOVE | HTCAPTION, 0); }

const Trigger popup_triggers[] = {
    {"NcActivateOff", WM_NCACTIVATE, "popup", activate_spare},
    {"ActivateOff", WM_ACTIVATE, "popup", activate_spare},
    {"KillFocus", WM_KILLFOCUS, "popup", activate_spare},
    {"ActivateOfTheNext", WM_ACTIVATE, "spare", activate_spare},
    {"ActivateOnAgain", WM_SETFOCUS, "popup", reactivate_popup},
    {"MouseActivate", WM_MOUSEACTIVATE, "popup", press_inactive_popup},
    {"ClickActivate", WM_SETFOCUS, "popup", press_inactive_popup},
    {"Hide", WM_SHOWWINDOW, "popup", hide_popup},
    {"HidePositionChanged", WM_WINDOWPOSCHANGED, "popup", hide_popup},
    {"HideDeactivates", WM_ACTIVATE, "popup", hide_popup},
    {"HideActivatesTheOwner", WM_ACTIVATE, "owner", hide_popup},
    {"NewNcCreate", WM_NCCREATE, "new_popup", make_popup},
    {"NewCreate", WM_CREATE, "new_popup", make_popup},
    {"NewSize", WM_SIZE, "new_popup", make_popup},
    {"NewShow", WM_SHOWWINDOW, "new_popup", make_popup},
    {"NewPositionChanging", WM_WINDOWPOSCHANGING, "new_popup", make_popup},
    {"NewNcActivate", WM_NCACTIVATE, "new_popup", make_popup},
    {"NewActivate", WM_ACTIVATE, "new_popup", make_popup},
    {"NewSetFocus", WM_SETFOCUS, "new_popup", make_popup},
    {"NewErase", WM_ERASEBKGND, "new_popup", make_popup},
    {"NewPositionChanged", WM_WINDOWPOSCHANGED, "new_popup", make_popup},
    {"Destroy", WM_DESTROY, "popup", [](Test& test) { DestroyWindow(test.popup()); }},
    {"DestroyDeactivates", WM_ACTIVATE, "popup", [](Test& test) { DestroyWindow(test.popup()); }},
    {"OwnersDestroyHidesIt", WM_WINDOWPOSCHANGING, "popup",
     [](Test& test) { DestroyWindow(test.window("owner")); }},
    {"OwnersDestroy", WM_DESTROY, "popup", [](Test& test) { DestroyWindow(test.window("owner")); }},
    {"DragBegins", WM_ENTERSIZEMOVE, "popup", drag_popup},
};

INSTANTIATE_TEST_SUITE_P(Popup, DestroyInsideTest,
                         testing::Combine(testing::ValuesIn(popup_triggers),
                                          testing::Values("self", "popup", "owner")),
                         [](const auto& instance) {
                           return std::string(std::get<0>(instance.param).label) + "_" +
                                  std::get<1>(instance.param);
                         });

}  // namespace
}  // namespace corvane::conformance
