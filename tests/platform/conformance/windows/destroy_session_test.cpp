// A session that is played once for every message that comes in it, each time with a window
// destroyed at that message. Afterwards the window is gone and everything else works.
#include <gtest/gtest.h>

#include <optional>

#include "tests/support/desktop.h"
#include "tests/support/message_trap.h"
#include "tests/support/rects.h"

namespace corvane::conformance {
namespace {

using test::MessageTrap;
using test::TrapPoint;
using test::TrapSide;

LRESULT CALLBACK drag_on_press(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_LBUTTONDOWN && GetWindowLongPtrW(window, GWLP_USERDATA) != 0) {
    return SendMessageW(window, WM_SYSCOMMAND, SC_MOVE | HTCAPTION, 0);
  }
  return DefWindowProcW(window, message, wparam, lparam);
}

// owner (pop-up) <- popup (owned) -> parent (child) -> target (child) with a nephew and a scroll
// bar; beside the target a sibling, and beside them all a spare pop-up.
class Session : public test::Desktop {
 public:
  explicit Session(MessageTrap*& trap) : Desktop({320, 240}) {
    WNDCLASSW window_class{};
    window_class.lpfnWndProc = &drag_on_press;
    window_class.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    window_class.lpszClassName = L"Session";
    EXPECT_NE(RegisterClassW(&window_class), 0);
    trap = &trap_.emplace();
  }
  ~Session() {
    for (const auto& [name, window] : windows_) DestroyWindow(window);
  }

  // Which is null before its creation and while that lasts.
  HWND window(const std::string& name) const {
    if (name == "self") return trap_->sprung_at();
    const auto found = windows_.find(name);
    return found != windows_.end() ? found->second : nullptr;
  }

  // To its end, or to that of the phase in which the trap springs.
  void play() {
    for (const auto phase :
         {&Session::create_windows, &Session::move_and_hide, &Session::paint, &Session::move_focus,
          &Session::activate, &Session::use_mouse, &Session::type, &Session::change,
          &Session::capture, &Session::scroll, &Session::show_bar, &Session::drag_popup,
          &Session::drag_target, &Session::destroy_nephew, &Session::destroy_target,
          &Session::hide_popup, &Session::destroy_owner}) {
      trap_->begin_phase();
      (this->*phase)();
      pump();
      if (trap_->sprung()) return;
    }
  }

  void expect_everything_else_works() {
    ReleaseCapture();
    send_mouse(MOUSEEVENTF_LEFTUP);
    pump();
    advance(2000);
    EXPECT_TRUE(pump());
    const HWND fresh = make("fresh", {100, 100, 60, 60});
    pump();
    EXPECT_EQ(pixel(150, 150), RGB(255, 255, 255));
    EXPECT_EQ(GetActiveWindow(), fresh);
    EXPECT_EQ(GetFocus(), fresh);
    EXPECT_EQ(GetCapture(), nullptr);
    SetWindowLongPtrW(fresh, GWLP_USERDATA, 1);
    SetCursorPos(110, 110);
    send_mouse(MOUSEEVENTF_LEFTDOWN);
    SetCursorPos(113, 114);
    send_mouse(MOUSEEVENTF_LEFTUP);
    pump();
    EXPECT_EQ(test::text_of(test::window_rect(fresh)), "103,104,163,164");
  }

 private:
  HWND make(const std::string& name, const RECT& place, const std::string& parent = {},
            DWORD style = WS_POPUP) {
    const HWND made = CreateWindowExW(0, L"Session", std::wstring(name.begin(), name.end()).c_str(),
                                      style | WS_VISIBLE, place.left, place.top, place.right,
                                      place.bottom, window(parent), nullptr, nullptr, nullptr);
    return windows_[name] = made;
  }
  void press_and_move(POINT from, POINT to) {
    SetCursorPos(from.x, from.y);
    send_mouse(MOUSEEVENTF_LEFTDOWN);
    SetCursorPos(to.x, to.y);
    send_mouse(MOUSEEVENTF_LEFTUP);
    pump();
  }

  void create_windows() {
    make("spare", {240, 180, 40, 40});
    make("owner", {250, 10, 40, 40});
    make("popup", {20, 20, 200, 200}, "owner");
    make("parent", {10, 10, 150, 150}, "popup", WS_CHILD);
    make("target", {30, 30, 100, 100}, "parent", WS_CHILD | WS_VSCROLL);
    make("nephew", {5, 5, 20, 20}, "target", WS_CHILD);
    make("sibling", {0, 0, 20, 20}, "parent", WS_CHILD);
    pump();
    trap_->begin_phase();
    make("new child", {40, 40, 10, 10}, "target", WS_CHILD);
    make("new popup", {230, 60, 40, 40}, "popup");
  }
  void move_and_hide() {
    MoveWindow(window("target"), 35, 35, 90, 90, TRUE);
    ShowWindow(window("target"), SW_HIDE);
    ShowWindow(window("target"), SW_SHOW);
    SetWindowPos(window("sibling"), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  }
  void paint() {
    InvalidateRect(window("target"), nullptr, TRUE);
    UpdateWindow(window("target"));
    RedrawWindow(window("popup"), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    InvalidateRect(window("target"), nullptr, TRUE);
  }
  void move_focus() {
    SetFocus(window("target"));
    SetFocus(window("sibling"));
    SetFocus(window("target"));
    EnableWindow(window("target"), FALSE);
    EnableWindow(window("target"), TRUE);
  }
  void activate() {
    SetFocus(window("target"));
    SetActiveWindow(window("spare"));
    SetActiveWindow(window("popup"));
    SetActiveWindow(window("spare"));
  }
  void use_mouse() {
    press_and_move({80, 100}, {85, 105});
    send_mouse(MOUSEEVENTF_RIGHTDOWN);
    send_mouse(MOUSEEVENTF_RIGHTUP);
    send_mouse(MOUSEEVENTF_WHEEL, WHEEL_DELTA);
    pump();
    SetActiveWindow(window("spare"));
    press_and_move({25, 25}, {26, 26});
  }
  void type() {
    SetFocus(window("target"));
    send_key('A', true);
    send_key('A', false);
    PostMessageW(window("target"), WM_USER, 0, 0);
    PostMessageW(window("target"), WM_USER, 0, 0);
    SetTimer(window("target"), 1, 10, nullptr);
    SetTimer(window("target"), 2, 10, nullptr);
    advance(30);
    pump();
    for (const UINT_PTR timer : {1U, 2U}) KillTimer(window("target"), timer);
  }
  void change() {
    SetWindowLongW(window("target"), GWL_STYLE,
                   static_cast<LONG>(WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_BORDER));
    SetWindowTextW(window("target"), L"x");
    SendMessageW(window("target"), WM_APP, 0, 0);
  }
  void capture() {
    SetCapture(window("target"));
    SetCapture(window("sibling"));
    SetCapture(window("target"));
    move_to(5, 5);
    EnableWindow(window("target"), FALSE);
    EnableWindow(window("target"), TRUE);
    SetCapture(window("target"));
    ReleaseCapture();
  }
  // Its bar: x 138 to 154, y 65 to 154.
  void scroll() {
    const SCROLLINFO info{sizeof(SCROLLINFO), SIF_ALL, 0, 600, 300, 0, 0};
    SetScrollInfo(window("target"), SB_VERT, &info, TRUE);
    PostMessageW(window("target"), WM_USER, 0, 0);
    InvalidateRect(window("target"), nullptr, TRUE);
    press_and_move({146, 90}, {146, 110});
    trap_->begin_phase();
    press_and_move({146, 150}, {146, 149});
  }
  void show_bar() {
    const SCROLLINFO info{sizeof(SCROLLINFO), SIF_PAGE, 0, 0, 601, 0, 0};
    SetScrollInfo(window("target"), SB_VERT, &info, TRUE);
    ShowScrollBar(window("target"), SB_VERT, TRUE);
  }
  void drag_popup() {
    SetWindowLongPtrW(window("popup"), GWLP_USERDATA, 1);
    press_and_move({25, 200}, {30, 195});
  }
  void drag_target() {
    SetWindowLongPtrW(window("target"), GWLP_USERDATA, 1);
    press_and_move({80, 100}, {85, 105});
  }
  void destroy_nephew() { DestroyWindow(window("nephew")); }
  void destroy_target() { SendMessageW(window("target"), WM_CLOSE, 0, 0); }
  void hide_popup() {
    SetActiveWindow(window("popup"));
    ShowWindow(window("popup"), SW_HIDE);
    ShowWindow(window("popup"), SW_SHOW);
  }
  void destroy_owner() { DestroyWindow(window("owner")); }

  std::optional<MessageTrap> trap_;  // outlives the windows that it stands before
  std::map<std::string, HWND> windows_;
};

class DestroySessionTest : public testing::TestWithParam<const char*> {};

TEST_P(DestroySessionTest, WindowsMayBeDestroyedAtEveryMessage) {
  const std::string victim = GetParam();
  MessageTrap* trap = nullptr;
  std::map<TrapPoint, std::vector<int>> messages;
  {
    Session session(trap);
    session.play();
    messages = trap->firsts();
  }
  EXPECT_GT(messages.size(), 100U);
  for (const auto& [point, occurrences] : messages) {
    for (const int occurrence : occurrences) {
      SCOPED_TRACE(point.window + " at message " + std::to_string(point.message) + ", occurrence " +
                   std::to_string(occurrence));
      Session session(trap);
      HWND doomed = nullptr;
      trap->set(point, occurrence, TrapSide::before_handling, [&] {
        doomed = session.window(victim);
        DestroyWindow(doomed);
      });
      session.play();
      EXPECT_TRUE(trap->sprung());
      EXPECT_EQ(IsWindow(doomed), 0);
      session.expect_everything_else_works();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, DestroySessionTest, testing::Values("self", "target", "popup", "owner"),
                         [](const auto& instance) { return instance.param; });

}  // namespace
}  // namespace corvane::conformance
