#pragma once
// Maximized, minimized and restored windows. A maximized window covers the screen or its parent. A
// minimized one is its caption alone, at the foot of the screen, and takes the windows that it owns
// from the screen with it; a box or a double-click brings it back.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// The change of place, with its messages; a hidden window stays hidden. False: the window is gone.
bool maximize(HWND window);
bool minimize(HWND window);
// One that was maximized when it was minimized is maximized again.
bool restore(HWND window);
bool restore_to_normal(HWND window);

// Maximized windows cover, and minimized ones stand at the foot of, a screen of another size.
void fit_to_screen(System& state);

// WM_SIZE's wParam.
WPARAM size_kind(const Window& window);

}  // namespace corvane::system
