#pragma once
// Straight lines by the pen's rules.
#include "corvane/platform/system/gdi/dc.h"
#include "corvane/platform/system/gdi/objects.h"

namespace corvane::system {

// From one point to another, surface coordinates. A pen up to 1 pixel wide leaves out the end
// point. A wider one is a disc whose middle lies on the points' upper left corner (even width) or
// in their middle (odd width) and covers both ends. Marks what it touches.
void draw_line(DeviceContext& dc, const PenObject& pen, POINT from, POINT to);

}  // namespace corvane::system
