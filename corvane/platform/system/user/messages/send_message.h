#pragma once
// Sending to window procedures. After every send any window may be gone.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Calls the window's procedure; 0 when the handle is stale.
LRESULT send(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0);
// Sends WM_PARENTNOTIFY to every ancestor, innermost first. lparam_of gives each one's lParam.
template <typename LparamOf>
void notify_parents(HWND window, WPARAM wparam, const LparamOf& lparam_of);
// Posts a message as the system does (time and pointer position of now).
bool post(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
// Calls the hook at that position, the newest being at 0; 0 when there is none.
LRESULT call_hook(std::size_t position, int code, WPARAM wparam, LPARAM lparam);
// Asks the WH_CBT hooks; false when one refuses the creation.
bool ask_creation_hooks(HWND window, CREATESTRUCTW& create);

template <typename LparamOf>
void notify_parents(HWND window, WPARAM wparam, const LparamOf& lparam_of) {
  Window* found = find(window);
  while (found != nullptr && found->is_child() && found->parent != nullptr) {
    HWND parent = found->parent->handle;
    send(parent, WM_PARENTNOTIFY, wparam, lparam_of(parent));
    found = find(parent);
  }
}

}  // namespace corvane::system
