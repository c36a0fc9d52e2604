#pragma once
// What layers change in their window's style when they are created. False: the window did not
// survive it, and the object may be gone too.
#include "corvane/platform/framework/wnd.h"

namespace corvane {

// A layered window that the desktop does not list. Its colour key and opacity are the caller's.
bool become_overlay(CWnd& window);
// No border to size the window with.
bool lose_sizing_border(CWnd& window);

}  // namespace corvane
