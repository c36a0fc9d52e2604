#pragma once
// Sending to window procedures. After every send any window may be gone.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Calls the window's procedure; 0 when the handle is stale, or the nesting too deep.
LRESULT send(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0);

// A message is being dispatched, until the end of the scope: what is sent meanwhile is counted
// anew.
class DispatchScope {
 public:
  explicit DispatchScope(SendNesting& nesting);
  ~DispatchScope();
  DispatchScope(const DispatchScope&) = delete;
  DispatchScope& operator=(const DispatchScope&) = delete;

 private:
  SendNesting& nesting_;
  SendNesting outer_;
};

// Sends WM_PARENTNOTIFY to every ancestor, innermost first. lparam_of gives each one's lParam.
template <typename LparamOf>
void notify_parents(HWND window, WPARAM wparam, const LparamOf& lparam_of) {
  const Window* found = find(window);
  while (found != nullptr && found->is_child() && found->parent != nullptr) {
    const HWND parent = found->parent->handle;
    send(parent, WM_PARENTNOTIFY, wparam, lparam_of(parent));
    found = find(parent);
  }
}

}  // namespace corvane::system
