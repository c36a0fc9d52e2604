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
// there is no bar or no room. The bar of a scroll bar control is its client area.
RECT bar_rect(const Window& window, ScrollAxis axis);
// The square between the ends of two bars; empty when there are not both.
RECT bar_corner(const Window& window);
// Where the parts of a shown bar lie, along it; a thumb that the user holds is where it is held.
ScrollLayout bar_layout(const Window& window, ScrollAxis axis);
ScrollLayout dragged_bar_layout(const Window& window, ScrollAxis axis, int thumb_begin);
// Has the bar drawn anew.
void redraw_bar(Window& window, ScrollAxis axis);

// The bar that a call is about.
struct BarTarget {
  Window* window = nullptr;
  ScrollAxis axis = ScrollAxis::vertical;
  explicit operator bool() const { return window != nullptr; }
  ScrollBarState& bar() const { return window->bar(axis); }
};
// Results and errors as of SetScrollInfo and GetScrollInfo. A standard bar may come or go, and
// its window with it, if a handler ends it.
int set_bar_info(const BarTarget& target, LPCSCROLLINFO info, BOOL redraw);
BOOL get_bar_info(const BarTarget& target, LPSCROLLINFO info);

}  // namespace corvane::system
