#include "corvane/platform/system/user/input/activation.h"

#include <cassert>
#include <utility>

#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/windows/z_order.h"

namespace corvane::system {
namespace {

WPARAM as_wparam(HWND window) { return reinterpret_cast<WPARAM>(window); }
LPARAM as_lparam(HWND window) { return reinterpret_cast<LPARAM>(window); }

void deactivate(HWND old, HWND next) {
  send(old, WM_NCACTIVATE, FALSE, 0);
  send(old, WM_ACTIVATE, WA_INACTIVE, as_lparam(next));
}

bool may_be_active(const Window& window) {
  return is_top_level(window) && (window.style & WS_VISIBLE) != 0 &&
         (window.style & WS_DISABLED) == 0 && (window.ex_style & WS_EX_NOACTIVATE) == 0 &&
         !window.destroying;
}

// No window of the program is active from now on.
void deactivate_program(System& state) {
  HWND old = std::exchange(state.input.active, nullptr);
  if (old != nullptr) deactivate(old, nullptr);
  if (state.input.active != nullptr) return;
  if (std::exchange(state.input.application_active, false)) send(old, WM_ACTIVATEAPP, FALSE, 0);
  if (state.input.active == nullptr) change_focus(nullptr);
}

HWND next_active_after(const System& state, HWND window) {
  for (const Window* other : state.desktop->children) {
    const bool minimized = (other->style & WS_MINIMIZE) != 0;
    if (other->handle != window && !minimized && may_be_active(*other)) return other->handle;
  }
  return nullptr;
}

}  // namespace

void activate(HWND window, UINT how) {
  System* state = system();
  if (state == nullptr || state->input.active == window) return;
  Window* target = state->find(window);
  if (window != nullptr && target == nullptr) return;
  assert(target == nullptr || is_top_level(*target));
  HWND old = state->input.active;
  state->input.active = window;
  if (target != nullptr) raise(*state, *target);
  if (old != nullptr) deactivate(old, window);
  if (state->input.active != window) return;
  if (window != nullptr && !state->input.application_active && !state->input.in_background) {
    state->input.application_active = true;
    send(window, WM_ACTIVATEAPP, TRUE, 0);
  }
  if (window == nullptr) {
    change_focus(nullptr);
    return;
  }
  if (state->input.active == window) send(window, WM_NCACTIVATE, TRUE, 0);
  if (state->input.active == window) send(window, WM_ACTIVATE, how, as_lparam(old));
}

void activate_next_after(HWND window) {
  System* state = system();
  if (state == nullptr || state->input.active != window) return;
  Window* leaving = state->find(window);
  Window* owner = leaving == nullptr ? nullptr : state->find(leaving->owner);
  if (owner != nullptr && may_be_active(*owner)) {
    activate(owner->handle, WA_ACTIVE);
    return;
  }
  if (HWND next = next_active_after(*state, window)) {
    activate(next, WA_ACTIVE);
  } else {
    deactivate_program(*state);
  }
}

void leave_foreground() {
  System* state = system();
  if (state == nullptr || state->input.in_background) return;
  state->input.in_background = true;
  state->input.active_before = state->input.active;
  deactivate_program(*state);
}

void enter_foreground() {
  System* state = system();
  if (state == nullptr || !state->input.in_background) return;
  state->input.in_background = false;
  if (HWND active = state->input.active) {
    // A window became active meanwhile; only the program has to be told yet.
    state->input.application_active = true;
    send(active, WM_ACTIVATEAPP, TRUE, 0);
    return;
  }
  Window* former = state->find(state->input.active_before);
  const bool returns = former != nullptr && may_be_active(*former);
  activate(returns ? former->handle : next_active_after(*state, nullptr), WA_ACTIVE);
}

void change_focus(HWND window) {
  System* state = system();
  if (state == nullptr || state->input.focus == window) return;
  HWND old = state->input.focus;
  state->input.focus = window;
  if (old != nullptr) send(old, WM_KILLFOCUS, as_wparam(window), 0);
  if (window == nullptr || state->input.focus != window) return;
  send(window, WM_SETFOCUS, as_wparam(state->find(old) == nullptr ? nullptr : old), 0);
}

bool can_take_focus(const Window& window) {
  return window.parent != nullptr && enabled_with_parents(window) && !window.destroying;
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

HWND SetFocus(HWND window) {
  System* state = corvane::system::system();
  if (state == nullptr) return nullptr;
  HWND old = state->input.focus;
  if (window == nullptr) {
    change_focus(nullptr);
    return old;
  }
  Window* found = checked(window);
  if (found == nullptr || !can_take_focus(*found)) return nullptr;
  HWND top = top_level_of(*found)->handle;
  if (state->input.active != top) activate(top, WA_ACTIVE);
  if (find(window) == nullptr) return nullptr;
  change_focus(window);
  return old;
}

HWND GetFocus() {
  System* state = corvane::system::system();
  return state == nullptr ? nullptr : state->input.focus;
}

HWND SetActiveWindow(HWND window) {
  System* state = corvane::system::system();
  if (state == nullptr) return nullptr;
  HWND old = state->input.active;
  if (window != nullptr) {
    Window* found = checked(window);
    if (found == nullptr || !is_top_level(*found) || (found->style & WS_DISABLED) != 0) {
      return nullptr;
    }
  }
  activate(window, WA_ACTIVE);
  return old;
}

HWND GetActiveWindow() {
  System* state = corvane::system::system();
  return state == nullptr ? nullptr : state->input.active;
}

BOOL SetForegroundWindow(HWND window) {
  Window* found = checked(window);
  if (found == nullptr) return FALSE;
  HWND top = top_level_of(*found)->handle;
  SetActiveWindow(top);
  return GetForegroundWindow() == top ? TRUE : FALSE;
}

HWND GetForegroundWindow() {
  System* state = corvane::system::system();
  return state == nullptr || state->input.in_background ? nullptr : state->input.active;
}

BOOL EnableWindow(HWND window, BOOL enable) {
  Window* found = checked(window);
  if (found == nullptr) return FALSE;
  const bool was_disabled = (found->style & WS_DISABLED) != 0;
  if (was_disabled == (enable == FALSE)) return was_disabled ? TRUE : FALSE;
  if (enable != FALSE) {
    found->style &= ~WS_DISABLED;
    send(window, WM_ENABLE, TRUE, 0);
    return was_disabled ? TRUE : FALSE;
  }
  send(window, WM_CANCELMODE);
  found = find(window);
  if (found == nullptr) return was_disabled ? TRUE : FALSE;
  found->style |= WS_DISABLED;
  // A focused child keeps the focus, and gets the keys.
  if (GetFocus() == window) change_focus(nullptr);
  send(window, WM_ENABLE, FALSE, 0);
  return was_disabled ? TRUE : FALSE;
}

}  // namespace corvane_system
