#pragma once
// Which window a screen point belongs to: z-order, visibility, enabling, colour key and alpha of
// layered windows, and each candidate's own answer to WM_NCHITTEST.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

struct Hit {
  HWND window = nullptr;
  int code = HTNOWHERE;
};

enum class DisabledTops { swallow, skip };

// Sends WM_NCHITTEST; HTTRANSPARENT passes to the window below. A disabled top-level window
// swallows the point (no window) or is skipped.
Hit hit_test(POINT screen_point, DisabledTops disabled_tops);
// True when a layered window lets the mouse through at this point.
bool lets_mouse_through(const Window& window, POINT screen_point);

}  // namespace corvane::system
