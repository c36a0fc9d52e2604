#pragma once
#include <memory>

#include "corvane/platform/system/display/display.h"

namespace corvane::system {

// The display that the environment asks for:
//   CORVANE_DISPLAY=headless  in memory, nothing is shown
//   CORVANE_DISPLAY=sdl       a window of the native desktop; null when there is none
//   otherwise                 a window when there is a native desktop, else in memory
//   CORVANE_SCREEN=1280x800   its first size in pixels, each side from 1 to 16384
// What was asked for and cannot be had is said in one line on stderr.
std::unique_ptr<Display> open_display();

}  // namespace corvane::system
