#pragma once
// The standard scroll bars of a window: their data, the room they take from the client area and
// when they come and go.
#include <optional>

#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

constexpr int kBarThickness = 17;  // pixels

constexpr DWORD style_of(ScrollAxis axis) {
  return axis == ScrollAxis::vertical ? WS_VSCROLL : WS_HSCROLL;
}
inline bool has_bar(const Window& window, ScrollAxis axis) {
  return (window.style & style_of(axis)) != 0;
}
// Null for what is not SB_HORZ or SB_VERT.
std::optional<ScrollAxis> axis_of(int bar);

// Takes the room of the bars from a rectangle that is to become the client area. A rectangle
// narrower than a bar keeps its room: the bar is not seen then.
void leave_room_for_bars(const Window& window, RECT& rect);
// Where a bar is, in client coordinates: outside the client area, inside the frame; empty when
// there is no bar or no room.
RECT bar_rect(const Window& window, ScrollAxis axis);
// The square between the ends of two bars; empty when there are not both.
RECT bar_corner(const Window& window);
// Where the parts of a shown bar lie, along it; a thumb that the user holds is where it is held.
ScrollLayout bar_layout(const Window& window, ScrollAxis axis);
ScrollLayout dragged_bar_layout(const Window& window, ScrollAxis axis, int thumb_begin);

}  // namespace corvane::system
