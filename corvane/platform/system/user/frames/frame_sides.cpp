#include "corvane/platform/system/user/frames/frame_sides.h"

#include <algorithm>

#include "corvane/platform/system/user/windows/window_geometry.h"

namespace corvane::system {
namespace {

// -1: the first side is dragged, 1: the last, 0: neither.
struct Directions {
  int across;
  int down;
};

Directions directions_of(int side) {
  constexpr Directions kDirections[] = {{0, 0},  {-1, 0}, {1, 0},  {0, -1}, {-1, -1},
                                        {1, -1}, {0, 1},  {-1, 1}, {1, 1}};
  return side >= WMSZ_LEFT && side <= WMSZ_BOTTOMRIGHT ? kDirections[side] : Directions{0, 0};
}

void drag(LONG& first, LONG& last, int direction, int travel, int smallest, int largest) {
  if (direction == 0) return;
  const int size = last - first + direction * travel;
  const int allowed = window_size(std::max(std::min(size, largest), smallest));
  (direction < 0 ? first : last) = direction < 0 ? last - allowed : first + allowed;
}

}  // namespace

RECT sized_frame(const RECT& frame, int side, POINT travel, const MINMAXINFO& limits) {
  const auto [across, down] = directions_of(side);
  RECT sized = frame;
  drag(sized.left, sized.right, across, travel.x, limits.ptMinTrackSize.x, limits.ptMaxTrackSize.x);
  drag(sized.top, sized.bottom, down, travel.y, limits.ptMinTrackSize.y, limits.ptMaxTrackSize.y);
  return sized;
}

}  // namespace corvane::system
