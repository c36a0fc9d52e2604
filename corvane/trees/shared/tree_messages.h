#pragma once
// The messages that a folder tree gets from the mouse hook and sends to its host.
#include "corvane/platform/platform.h"

namespace corvane {

// A button was pressed anywhere on the desktop; wParam, lParam: the point on the screen.
bool is_mouse_hook_message(UINT message);

// Posts WM_TREE_SELECT to the parent of the tree's window, if it has one.
void post_tree_select(HWND tree);

}  // namespace corvane
