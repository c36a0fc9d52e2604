#include "corvane/platform/system/user/windows/size_limits.h"

#include <algorithm>

#include "corvane/platform/system/user/frames/frame_metrics.h"
#include "corvane/platform/system/user/frames/window_frame.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/windows/window_geometry.h"

namespace corvane::system {

bool has_limits(const Window& window) {
  return window.has_caption() || (window.style & WS_THICKFRAME) != 0;
}

// Borders that nobody could take hold of lie outside. A window that fills the screen in the native
// window's frame has none.
RECT maximized_frame(const Window& window) {
  RECT area = window.parent->client_area();
  const RECT restored = window.restored_frame.value_or(window.frame);
  const int border = framed_natively(window, restored) ? 0 : frame_layout(window, area).border();
  InflateRect(&area, border, border);
  return area;
}

MINMAXINFO ask_limits(HWND window) {
  const Window* found = find(window);
  if (found == nullptr || found->parent == nullptr) return {};
  const RECT largest = maximized_frame(*found);
  const bool captioned = (found->style & WS_CAPTION) != 0;
  const int border = 2 * frame_layout(*found).border();
  MINMAXINFO info{};
  info.ptMaxSize = {largest.right - largest.left, largest.bottom - largest.top};
  info.ptMaxPosition = {largest.left, largest.top};
  info.ptMinTrackSize = captioned ? POINT{kMinTrackWidth, kMinTrackHeight} : POINT{border, border};
  info.ptMaxTrackSize = {kMaxWindowSize, kMaxWindowSize};
  send(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
  return info;
}

SIZE within_limits(SIZE size, const MINMAXINFO& limits) {
  return {std::max(std::min(size.cx, limits.ptMaxTrackSize.x), limits.ptMinTrackSize.x),
          std::max(std::min(size.cy, limits.ptMaxTrackSize.y), limits.ptMinTrackSize.y)};
}

}  // namespace corvane::system
