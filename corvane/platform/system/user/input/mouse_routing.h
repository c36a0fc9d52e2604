#pragma once
// Mouse events: from the display's event to the message for one window.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

void route_mouse(System& state, const InputEvent& event);
void route_wheel(System& state, const InputEvent& event);

// Tells a window that asked by TrackMouseEvent that the pointer left it.
void check_leave(System& state, HWND pointer_window);

}  // namespace corvane::system
