#pragma once
// The messages between the library's windows and its host. All are posted.
#include "corvane/platform/platform.h"

namespace corvane {

// Host -> layer: draw yourself anew. wParam: 1 leaves the hover state (automatic photographs).
inline constexpr UINT WM_LAYER_DRAW = 0x08B1;
// Folder tree -> its parent: the selected folder changed. wParam 0, lParam 0.
inline constexpr UINT WM_TREE_SELECT = 0x08B4;
// Split-screen bar -> host. wParam: the clicked button, 0 to 2; lParam: the bar's page.
inline constexpr UINT WM_SPLIT_SCREEN_CMD = 0x08C0;
// Crop bar -> host. wParam: the clicked button, 1 to 6; lParam 0.
inline constexpr UINT WM_CUT_CMD = 0x08C7;
// Gesture layer -> host. wParam: 1, the count-down ended; lParam 0.
inline constexpr UINT WM_GESTURE_NOTIFY = 0x08CB;
// Rotate layer -> host. wParam: the chosen angle in degrees; lParam 0.
inline constexpr UINT WM_ROTATE_NOTIFY = 0x08D5;
// Button layer -> its parent window. wParam: the button's id; lParam: its window handle.
inline constexpr UINT WM_LAYER_BTN_CLICK = 0x08D6;

// The name under which the mouse hook's message is registered (RegisterWindowMessageW).
inline constexpr wchar_t kHookMouseDownMessageName[] = L"MouseDown";

}  // namespace corvane
