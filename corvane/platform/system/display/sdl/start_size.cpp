#include "corvane/platform/system/display/sdl/start_size.h"

#include <algorithm>

namespace corvane::system {
namespace {

constexpr SIZE kComfortable{1280, 800};
constexpr SIZE kFrame{16, 48};  // what a desktop may put around a window, both sides together

LONG side(LONG work_area, LONG comfortable, LONG frame) {
  const LONG most = std::max<LONG>(work_area - frame, 1);
  return std::min(std::max(comfortable, work_area / 4 * 3), most);
}

}  // namespace

SIZE start_size(SIZE work_area) {
  return {side(work_area.cx, kComfortable.cx, kFrame.cx),
          side(work_area.cy, kComfortable.cy, kFrame.cy)};
}

}  // namespace corvane::system
