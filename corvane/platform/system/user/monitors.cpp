// MonitorFromWindow and GetMonitorInfoW.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

RECT monitor_rect(const System& state) {
  const SIZE size = state.display->full_size();
  return {0, 0, size.cx, size.cy};
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

namespace {

HMONITOR only_monitor() { return reinterpret_cast<HMONITOR>(ULONG_PTR{0x10001}); }

}  // namespace

HMONITOR MonitorFromWindow(HWND window, DWORD flags) {
  System* state = corvane::system::system();
  if (state == nullptr) return nullptr;
  if ((flags & (MONITOR_DEFAULTTOPRIMARY | MONITOR_DEFAULTTONEAREST)) != 0) return only_monitor();
  const Window* found = checked(window);
  if (found == nullptr) return nullptr;
  const RECT frame = frame_on_screen(*found);
  const RECT monitor = monitor_rect(*state);
  RECT common{};
  return IntersectRect(&common, &frame, &monitor) ? only_monitor() : nullptr;
}

BOOL GetMonitorInfoW(HMONITOR monitor, MONITORINFO* info) {
  System* state = corvane::system::system();
  if (state == nullptr || monitor != only_monitor() || info == nullptr) return FALSE;
  if (info->cbSize != sizeof(MONITORINFO)) return FALSE;
  *info = {sizeof(MONITORINFO), monitor_rect(*state), state->work_area, MONITORINFOF_PRIMARY};
  return TRUE;
}

}  // namespace corvane_system
