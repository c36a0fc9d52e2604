#pragma once
// The frame of a window: its layout, the client area that it leaves, and whether the native
// window's frame stands for it.
#include "corvane/platform/system/user/frames/frame_layout.h"
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Of the window as it is, or as it would be at another place (in the parent's client coordinates).
FrameLayout frame_layout(const Window& window, const RECT& outer);
inline FrameLayout frame_layout(const Window& window) { return frame_layout(window, window.frame); }
// A point of the screen in the coordinates of frame_layout(window).
POINT frame_point(const Window& window, POINT screen_point);

// What WM_NCCALCSIZE does by default: takes frame and scroll bars from a rectangle.
void leave_room_for_frame(const Window& window, RECT& rect);
// Whether anything of the window lies outside of its client area.
bool has_non_client_area(const Window& window);

// An unowned window that fills the screen at `frame` has the native window's frame for its own,
// where the native window has one: two captions, one in the other, would say the same.
bool framed_natively(const Window& window, const RECT& frame);

}  // namespace corvane::system
