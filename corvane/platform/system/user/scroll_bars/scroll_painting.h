#pragma once
// Drawing the standard scroll bars: flat, light, a round thumb, triangles for arrows.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Draws the bars that the window shows and clears what was due. Sends nothing.
void paint_bars(Window& window);

}  // namespace corvane::system
