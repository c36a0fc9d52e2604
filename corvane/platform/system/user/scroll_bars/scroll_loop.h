#pragma once
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Lets the user work a standard scroll bar until the left button is released (WM_SYSCOMMAND,
// SC_VSCROLL | HTVSCROLL and its counterpart): arrows and trough repeat while held, the thumb
// follows the pointer. `press` is the pressed point on the screen. Runs its own message loop;
// returns when the button is up, the capture is lost, or the window or the bar is gone.
void run_scroll_loop(HWND window, ScrollAxis axis, POINT press);

}  // namespace corvane::system
