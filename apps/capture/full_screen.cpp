#include "apps/capture/full_screen.h"

namespace capture {
namespace {

constexpr LONG kEdge = 3;  // pixels

bool brings(bool shown, const RECT& part, bool at_edge, POINT pointer) {
  if (!shown) return at_edge && IsRectEmpty(&part) == FALSE;
  return at_edge || PtInRect(&part, pointer) != FALSE;
}

// Empty when it is not known.
RECT monitor_of(HWND window) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof(monitor);
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
  return monitor.rcMonitor;
}

}  // namespace

ShownParts parts_at(const ShownParts& now, const WindowLayout& layout, SIZE client, POINT pointer) {
  const RECT toolbar{0, 0, client.cx, layout.library.top};
  ShownParts shown;
  shown.toolbar = brings(now.toolbar, toolbar, pointer.y < kEdge, pointer);
  shown.library = brings(now.library, layout.library, pointer.x < kEdge, pointer);
  shown.strip = brings(now.strip, layout.strip, pointer.y >= client.cy - kEdge, pointer);
  return shown;
}

void CFullScreen::Toggle(HWND window) {
  RECT target = former_;
  if (!active_) {
    GetWindowRect(window, &former_);
    target = monitor_of(window);
    if (IsRectEmpty(&target)) return;
  }
  active_ = !active_;
  SetWindowPos(window, nullptr, target.left, target.top, target.right - target.left,
               target.bottom - target.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

bool CFullScreen::TakenFrom(HWND window) {
  RECT now{};
  GetWindowRect(window, &now);
  const RECT monitor = monitor_of(window);
  if (!active_ || IsIconic(window) || EqualRect(&now, &monitor)) return false;
  active_ = false;
  return true;
}

}  // namespace capture
