#pragma once
// Plays a crop without a screen: synthetic mouse and keys in, numbered pictures of the screen out.
#include <string>

#include "apps/capture/main_window.h"

namespace capture {

// Drives the window, which must be shown on a headless display, and leaves frame_01.png ... and
// the cropped picture's copy crop.png in the folder (made when missing; older frames of ours are
// replaced). Prints one line per picture. 0, or 1 when something could not be written.
int play_scripted_session(CMainWindow& window, const std::string& folder);

}  // namespace capture
