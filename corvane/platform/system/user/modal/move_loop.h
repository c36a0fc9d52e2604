#pragma once
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Let the user drag a window (WM_SYSCOMMAND, SC_MOVE | HTCAPTION) or one of its sides and corners
// (SC_SIZE + WMSZ_LEFT to WMSZ_BOTTOMRIGHT) with the mouse until the button is released. They run
// their own message loop and return when the drag has ended or the window is gone.
void run_move_loop(HWND window);
void run_size_loop(HWND window, int side);

}  // namespace corvane::system
