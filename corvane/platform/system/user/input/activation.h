#pragma once
// Active window and keyboard focus. Handlers may destroy windows or move the focus elsewhere in
// the middle; a change that was overtaken stops.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Makes a top-level window (or none) active; `state` is WA_ACTIVE or WA_CLICKACTIVE.
void activate(HWND window, UINT how);
// Moves the activation away from a window that is hidden or destroyed.
void activate_next_after(HWND window);
// The desktop gives its focus to another program, or back.
void leave_foreground();
void enter_foreground();
// Moves the focus; both may be null. Sends WM_KILLFOCUS and WM_SETFOCUS.
void change_focus(HWND window);
bool can_take_focus(const Window& window);

}  // namespace corvane::system
