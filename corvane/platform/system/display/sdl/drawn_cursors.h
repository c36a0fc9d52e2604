#pragma once
#include <vector>

#include "corvane/platform/system/display/display.h"

namespace corvane::system {

struct DrawnCursor {
  SIZE size{};
  POINT hotspot{};
  std::vector<Pixel> pixels;  // each opaque or 0; rows from top to bottom
};

// Draws the cursors that desktops show as something else or, without a cursor theme, not at all:
// the cross, the two-way arrows, the sign for what is not possible, the hand. No pixels for the
// other shapes.
DrawnCursor draw_cursor(CursorShape shape);

}  // namespace corvane::system
