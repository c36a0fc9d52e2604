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
    for (const HWND window : {fresh_, new_popup_, popup_, owner_, spare_}) DestroyWindow(window);
  }

  // Which is null as long as its creation lasts.
  HWND window(const std::string& name) const {
    return name == "self"    ? trap_->sprung_at()
           : name == "owner" ? owner_
           : name == "popup" ? popup_
                             : target_;
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
    fresh_ = make("fresh", {100, 100, 60, 60}, nullptr);
    pump();
    EXPECT_EQ(pixel(150, 150), RGB(255, 255, 255));
    EXPECT_EQ(GetActiveWindow(), fresh_);
    EXPECT_EQ(GetFocus(), fresh_);
    EXPECT_EQ(GetCapture(), nullptr);
    SetWindowLongPtrW(fresh_, GWLP_USERDATA, 1);
    SetCursorPos(110, 110);
    send_mouse(MOUSEEVENTF_LEFTDOWN);
    SetCursorPos(113, 114);
    send_mouse(MOUSEEVENTF_LEFTUP);
    pump();
    EXPECT_EQ(test::text_of(test::window_rect(fresh_)), "103,104,163,164");
  }

 private:
  static HWND make(const char* name, const RECT& place, HWND parent, DWORD style = WS_POPUP) {
    const std::string text = name;
    return CreateWindowExW(0, L"Session", std::wstring(text.begin(), text.end()).c_str(),
                           style | WS_VISIBLE, place.left, place.top, place.right, place.bottom,
                           parent, nullptr, nullptr, nullptr);
  }
  void press_and_move(POINT from, POINT to) {
    SetCursorPos(from.x, from.y);
    send_mouse(MOUSEEVENTF_LEFTDOWN);
    SetCursorPos(to.x, to.y);
    send_mouse(MOUSEEVENTF_LEFTUP);
    pump();
  }

  void create_windows() {
    spare_ = make("spare", {240, 180, 40, 40}, nullptr);
    owner_ = make("owner", {250, 10, 40, 40}, nullptr);
    popup_ = make("popup", {20, 20, 200, 200}, owner_);
    parent_ = make("parent", {10, 10, 150, 150}, popup_, WS_CHILD);
    target_ = make("target", {30, 30, 100, 100}, parent_, WS_CHILD | WS_VSCROLL);
    nephew_ = make("nephew", {5, 5, 20, 20}, target_, WS_CHILD);
    sibling_ = make("sibling", {0, 0, 20, 20}, parent_, WS_CHILD);
    pump();
    trap_->begin_phase();
    make("new child", {40, 40, 10, 10}, target_, WS_CHILD);
    new_popup_ = make("new popup", {230, 60, 40, 40}, popup_);
  }
  void move_and_hide() {
    MoveWindow(target_, 35, 35, 90, 90, TRUE);
    ShowWindow(target_, SW_HIDE);
    ShowWindow(target_, SW_SHOW);
    SetWindowPos(sibling_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  }
  void paint() {
    InvalidateRect(target_, nullptr, TRUE);
    UpdateWindow(target_);
    RedrawWindow(popup_, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    InvalidateRect(target_, nullptr, TRUE);
  }
  void move_focus() {
    SetFocus(target_);
    SetFocus(sibling_);
    SetFocus(target_);
    EnableWindow(target_, FALSE);
    EnableWindow(target_, TRUE);
  }
  void activate() {
    SetFocus(target_);
    SetActiveWindow(spare_);
    SetActiveWindow(popup_);
    SetActiveWindow(spare_);
  }
  void use_mouse() {
    press_and_move({80, 100}, {85, 105});
    send_mouse(MOUSEEVENTF_RIGHTDOWN);
    send_mouse(MOUSEEVENTF_RIGHTUP);
    send_mouse(MOUSEEVENTF_WHEEL, WHEEL_DELTA);
    pump();
    SetActiveWindow(spare_);
    press_and_move({25, 25}, {26, 26});
  }
  void type() {
    SetFocus(target_);
    send_key('A', true);
    send_key('A', false);
    PostMessageW(target_, WM_USER, 0, 0);
    PostMessageW(target_, WM_USER, 0, 0);
    SetTimer(target_, 1, 10, nullptr);
    SetTimer(target_, 2, 10, nullptr);
    advance(30);
    pump();
    for (const UINT_PTR timer : {1U, 2U}) KillTimer(target_, timer);
  }
  void change() {
    SetWindowLongW(target_, GWL_STYLE,
                   static_cast<LONG>(WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_BORDER));
    SetWindowTextW(target_, L"x");
    SendMessageW(target_, WM_APP, 0, 0);
  }
  void capture() {
    SetCapture(target_);
    SetCapture(sibling_);
    SetCapture(target_);
    move_to(5, 5);
    EnableWindow(target_, FALSE);
    EnableWindow(target_, TRUE);
    SetCapture(target_);
    ReleaseCapture();
  }
  // Its bar: x 138 to 154, y 65 to 154.
  void scroll() {
    const SCROLLINFO info{sizeof(SCROLLINFO), SIF_ALL, 0, 600, 300, 0, 0};
    SetScrollInfo(target_, SB_VERT, &info, TRUE);
    PostMessageW(target_, WM_USER, 0, 0);
    InvalidateRect(target_, nullptr, TRUE);
    press_and_move({146, 90}, {146, 110});
    trap_->begin_phase();
    press_and_move({146, 150}, {146, 149});
  }
  void show_bar() {
    const SCROLLINFO info{sizeof(SCROLLINFO), SIF_PAGE, 0, 0, 601, 0, 0};
    SetScrollInfo(target_, SB_VERT, &info, TRUE);
    ShowScrollBar(target_, SB_VERT, TRUE);
  }
  void drag_popup() {
    SetWindowLongPtrW(popup_, GWLP_USERDATA, 1);
    press_and_move({25, 200}, {30, 195});
  }
  void drag_target() {
    SetWindowLongPtrW(target_, GWLP_USERDATA, 1);
    press_and_move({80, 100}, {85, 105});
  }
  void destroy_nephew() { DestroyWindow(nephew_); }
  void destroy_target() { SendMessageW(target_, WM_CLOSE, 0, 0); }
  void hide_popup() {
    SetActiveWindow(popup_);
    ShowWindow(popup_, SW_HIDE);
    ShowWindow(popup_, SW_SHOW);
  }
  void destroy_owner() { DestroyWindow(owner_); }

  std::optional<MessageTrap> trap_;  // outlives the windows that it stands before
  HWND spare_ = nullptr;
  HWND owner_ = nullptr;
  HWND popup_ = nullptr;
  HWND parent_ = nullptr;
  HWND target_ = nullptr;
  HWND nephew_ = nullptr;
  HWND sibling_ = nullptr;
  HWND new_popup_ = nullptr;
  HWND fresh_ = nullptr;
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
