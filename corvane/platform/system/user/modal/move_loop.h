#pragma once
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Drags a window with the mouse until the button is released (WM_SYSCOMMAND, SC_MOVE | HTCAPTION).
// Runs its own message loop; returns when the drag has ended or the window is gone.
void run_move_loop(HWND window);

}  // namespace corvane::system
