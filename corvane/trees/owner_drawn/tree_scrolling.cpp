#include "corvane/trees/owner_drawn/tree_scrolling.h"

#include <algorithm>

#include "corvane/platform/geometry.h"

namespace corvane {
namespace {

constexpr int kWheelUnitsOfAPixel = 12;

}  // namespace

int scrolled_by_bar(UINT code, UINT thumb, const ScrollState& state) {
  const long long position = state.position;
  const bool can_go_up = state.position > state.minimum;
  const bool can_go_down = state.position < state.limit;
  switch (code) {
    case SB_LINEUP:
      return can_go_up ? state.position - 1 : state.position;
    case SB_LINEDOWN:
      return can_go_down ? state.position + 1 : state.position;
    case SB_PAGEUP:
      return can_go_up ? std::max(clamp_coordinate(position - state.page), state.minimum)
                       : state.position;
    case SB_PAGEDOWN:
      return can_go_down ? std::min(clamp_coordinate(position + state.page), state.limit)
                         : state.position;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
      return static_cast<int>(thumb);
    case SB_TOP:
      return state.minimum;
    case SB_BOTTOM:
      return state.limit;
    default:
      return state.position;
  }
}

int scrolled_by_wheel(short distance, const ScrollState& state) {
  if (state.limit <= state.minimum) return state.position;
  const long long moved = state.position - static_cast<long long>(distance / kWheelUnitsOfAPixel);
  return std::clamp(clamp_coordinate(moved), state.minimum, state.limit);
}

}  // namespace corvane
