#pragma once
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Follows the mouse after a press on a box of the caption (HTCLOSE, HTMAXBUTTON, HTMINBUTTON),
// which looks pressed while the pointer is on it. True when the button was released there and the
// window is still there. Runs its own message loop.
bool run_box_loop(HWND window, int box);

}  // namespace corvane::system
