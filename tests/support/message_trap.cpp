#include "tests/support/message_trap.h"

#include <utility>

namespace corvane::test {
namespace {

WNDPROC replace_procedure(HWND window, WNDPROC procedure) {
  return reinterpret_cast<WNDPROC>(
      ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

std::string name_of(const CREATESTRUCTW& creation) {
  const std::wstring text = creation.lpszName != nullptr ? creation.lpszName : L"";
  return text.empty() ? "button" : std::string(text.begin(), text.end());
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

void MessageTrap::begin_phase() {
  ++phase_;
  if (breaks_off_ && sprung() && ++phases_since_ > 1) throw SessionOver();
}

// A window's object takes the window over after this hook, so the trap first stands where the
// class's procedure was; with the first message that comes through it goes before the object.
LRESULT CALLBACK MessageTrap::on_creation(int code, WPARAM wparam, LPARAM lparam) {
  if (code != HCBT_CREATEWND) return 0;
  const auto window = reinterpret_cast<HWND>(wparam);
  const auto* const creation = reinterpret_cast<const CBT_CREATEWNDW*>(lparam);
  live->windows_[window] = {name_of(*creation->lpcs), replace_procedure(window, &innermost)};
  return 0;
}

LRESULT CALLBACK MessageTrap::innermost(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (live == nullptr) return ::DefWindowProcW(window, message, wparam, lparam);
  Window& known = live->windows_[window];
  if (known.object_procedure == nullptr) {
    known.object_procedure = replace_procedure(window, &outermost);
  }
  return ::CallWindowProcW(known.class_procedure, window, message, wparam, lparam);
}

LRESULT CALLBACK MessageTrap::outermost(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  const Window& known = live->windows_[window];
  const bool now = live->is_set_on({known.name, message});
  if (now && live->side_ == TrapSide::before_handling) live->spring(window);
  ++live->depth_;
  const LRESULT result = ::CallWindowProcW(known.object_procedure, window, message, wparam, lparam);
  --live->depth_;
  if (now && live->side_ == TrapSide::after_handling) live->spring(window);
  return result;
}

bool MessageTrap::is_set_on(const TrapPoint& point) {
  Seen& seen = seen_[point];
  const bool first_in_phase = std::exchange(seen.phase, phase_) != phase_;
  if (++seen.times == 1 || (first_in_phase && depth_ > 0)) firsts_[point].push_back(seen.times);
  return seen.times == occurrence_ && point == point_;
}

void MessageTrap::spring(HWND window) {
  sprung_at_ = window;
  std::exchange(action_, nullptr)();
}

}  // namespace corvane::test
