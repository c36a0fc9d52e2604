#include "tests/support/message_trap.h"

#include <utility>

namespace corvane::test {
namespace {

WNDPROC replace_procedure(HWND window, WNDPROC procedure) {
  return reinterpret_cast<WNDPROC>(
      ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

std::string name_of(const CREATESTRUCTW& creation) {
  if (!creation.lpszName || !*creation.lpszName) return "button";
  const std::wstring text = creation.lpszName;
  return {text.begin(), text.end()};
}

}  // namespace

MessageTrap* MessageTrap::live = nullptr;

MessageTrap::MessageTrap() {
  live = this;
  hook_ = ::SetWindowsHookExW(WH_CBT, &on_creation, nullptr, ::GetCurrentThreadId());
}

MessageTrap::~MessageTrap() {
  ::UnhookWindowsHookEx(hook_);
  live = nullptr;
}

void MessageTrap::set(const TrapPoint& point, int occurrence, TrapSide side,
                      std::function<void()> action) {
  point_ = point;
  occurrence_ = occurrence;
  side_ = side;
  action_ = std::move(action);
}

// A window's object takes the window over after this hook, so the trap first stands where the
// class's procedure was; with the first message that comes through it goes before the object.
LRESULT CALLBACK MessageTrap::on_creation(int code, WPARAM wparam, LPARAM lparam) {
  if (code != HCBT_CREATEWND) return 0;
  const HWND window = reinterpret_cast<HWND>(wparam);
  const auto* creation = reinterpret_cast<const CBT_CREATEWNDW*>(lparam);
  live->names_[window] = name_of(*creation->lpcs);
  live->object_procedures_.erase(window);
  live->class_procedures_[window] = replace_procedure(window, &innermost);
  return 0;
}

LRESULT CALLBACK MessageTrap::innermost(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (!live) return ::DefWindowProcW(window, message, wparam, lparam);
  const bool first = !live->object_procedures_.contains(window);
  if (first) live->object_procedures_[window] = replace_procedure(window, &outermost);
  return ::CallWindowProcW(live->class_procedures_[window], window, message, wparam, lparam);
}

LRESULT CALLBACK MessageTrap::outermost(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  const WNDPROC handler = live->object_procedures_[window];
  const TrapPoint point = {live->names_[window], message};
  const int occurrence = live->count(point);
  const bool now = point == live->point_ && occurrence == live->occurrence_;
  if (now && live->side_ == TrapSide::before_handling) live->spring();
  const LRESULT result = ::CallWindowProcW(handler, window, message, wparam, lparam);
  if (now && live->side_ == TrapSide::after_handling) live->spring();
  return result;
}

int MessageTrap::count(const TrapPoint& point) {
  const int occurrence = ++seen_[point];
  if (seen_in_phase_.insert(point).second) firsts_[point].push_back(occurrence);
  return occurrence;
}

void MessageTrap::spring() {
  sprung_ = true;
  std::exchange(action_, nullptr)();
}

}  // namespace corvane::test
