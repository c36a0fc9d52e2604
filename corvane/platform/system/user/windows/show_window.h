#pragma once
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// The change itself, without asking or telling the window: style bit, damage, what is to be
// painted (with WM_NCPAINT and WM_ERASEBKGND for the shown one, or of the parent for the hidden).
void make_visible(HWND window);
void make_hidden(HWND window);

}  // namespace corvane::system
