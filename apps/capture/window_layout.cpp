#include "apps/capture/window_layout.h"

#include <algorithm>

namespace capture {
namespace {

// Both grow with the window, but a tree's rows and a thumbnail have a size that is enough.
constexpr int kNarrowestLibrary = 160, kWidestLibrary = 420;
constexpr int kMinStripHeight = 104, kMaxStripHeight = 260;
constexpr LONG kMinStageSize = 200;  // beside and above the others

int LibraryWidth(LONG width) {
  if (width < kNarrowestLibrary + kMinStageSize) return 0;
  return std::clamp(static_cast<int>(width) * 13 / 64, kNarrowestLibrary, kWidestLibrary);
}

int StripHeight(LONG height) {
  if (height < kMinStripHeight + kMinStageSize) return 0;
  return std::clamp(static_cast<int>(height) / 5, kMinStripHeight, kMaxStripHeight);
}

}  // namespace

WindowLayout LayOut(SIZE client, int toolbar_height) {
  LONG top = std::min<LONG>(toolbar_height, client.cy);
  LONG left = LibraryWidth(client.cx);
  LONG bottom = client.cy - StripHeight(client.cy - top);
  return {{0, top, left, client.cy},
          {left, top, client.cx, bottom},
          {left, bottom, client.cx, client.cy}};
}

}  // namespace capture
