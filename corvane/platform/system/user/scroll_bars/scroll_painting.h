#pragma once
// Drawing the standard scroll bars: flat, light, a round thumb, triangles for arrows.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Draws the bars that the window shows and clears what was due. Sends nothing.
void paint_bars(Window& window);
// Draws one bar into a rectangle of the device context. `rect` is as long as the bar's layout.
void draw_bar(const Window& window, ScrollAxis axis, HDC dc, const RECT& rect);

}  // namespace corvane::system
