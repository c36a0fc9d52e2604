#pragma once
// WM_GETMINMAXINFO: how large a window may be, and where it is when maximized.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Whether the size of a window is limited at all: those with a caption or a sizing border are.
bool has_limits(const Window& window);
// What the window answers to the platform's proposal.
MINMAXINFO ask_limits(HWND window);
SIZE within_limits(SIZE size, const MINMAXINFO& limits);
// Where a window is maximized: the screen or the parent's client area, for its own borders larger.
// In the coordinates of Window::frame.
RECT maximized_frame(const Window& window);

}  // namespace corvane::system
