#pragma once
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Gives the mouse to a window, or to none; the loser gets WM_CAPTURECHANGED.
void change_capture(System& state, HWND window);

}  // namespace corvane::system
