#pragma once
// Drawing windows' frames: flat, in the system colours, a darker line around, boxes with plain
// signs.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Draws the frame and the scroll bars that can be seen, and clears what was due of them. Sends
// nothing.
void paint_frame(Window& window);

}  // namespace corvane::system
