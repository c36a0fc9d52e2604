#pragma once
#include <memory>

#include "corvane/platform/system/display/display.h"

namespace corvane::system {

// The display that the environment asks for:
//   CORVANE_DISPLAY=headless  in memory, nothing is shown
//   CORVANE_DISPLAY=sdl       a window of the native desktop
//   otherwise                 a window when DISPLAY or WAYLAND_DISPLAY names a native desktop, else
//                             in memory
//   CORVANE_SCREEN=1280x800   its first size in pixels, each side from 1 to 16384; without it, what
//                             suits the desktop, 1280x800 in memory
// What was asked for and cannot be had is said in one line on stderr; null when that is the window.
std::unique_ptr<Display> open_display();

}  // namespace corvane::system
