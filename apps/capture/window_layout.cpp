#include "apps/capture/window_layout.h"

#include <algorithm>

namespace capture {
namespace {

// Both grow with the window, but a tree's rows and a thumbnail have a size that is enough.
constexpr int kMinLibraryWidth = 160, kMaxLibraryWidth = 420;
constexpr int kMinStripHeight = 104, kMaxStripHeight = 260;
constexpr LONG kMinStageSize = 200;  // beside and above the others

int library_width(LONG width, int asked_for) {
  const int most = static_cast<int>(width - kMinStageSize);
  if (most < kMinLibraryWidth) return 0;
  if (asked_for > 0) return std::clamp(asked_for, kMinLibraryWidth, most);
  return std::clamp(static_cast<int>(width) * 13 / 64, kMinLibraryWidth, kMaxLibraryWidth);
}

int strip_height(LONG height) {
  if (height < kMinStripHeight + kMinStageSize) return 0;
  return std::clamp(static_cast<int>(height) / 5, kMinStripHeight, kMaxStripHeight);
}

}  // namespace

WindowLayout lay_out(SIZE client, int toolbar_height, int asked_for) {
  LONG top = std::min<LONG>(toolbar_height, client.cy);
  LONG left = library_width(client.cx, asked_for);
  LONG bottom = client.cy - strip_height(client.cy - top);
  return {{0, top, left, client.cy},
          {left, top, client.cx, bottom},
          {left, bottom, client.cx, client.cy}};
}

}  // namespace capture
