#pragma once
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// WM_NCDESTROY and then forget_window, also when the handler throws.
void finish_destruction(HWND window);
// Removes the record with its timers, messages, focus, capture. Sends nothing but what closing the
// clipboard does, and is complete also when that throws. Children that a handler left behind go
// with it.
void forget_window(HWND window);

}  // namespace corvane::system
