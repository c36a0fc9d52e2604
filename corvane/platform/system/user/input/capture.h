#pragma once
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Gives the mouse to a window, or to none; the loser gets WM_CAPTURECHANGED. When nobody has it any
// more, the window under the pointer is moved over anew, which sets its cursor.
void change_capture(System& state, HWND window);

}  // namespace corvane::system
