// SystemParametersInfoW and the other facts about the system.
#include <algorithm>
#include <iterator>
#include <thread>

#include "corvane/platform/system/user/frames/frame_metrics.h"
#include "corvane/platform/system/user/scroll_bars/scroll_bars.h"
#include "corvane/platform/system/user/windows/window_geometry.h"

namespace corvane_system {
using namespace corvane::system;

BOOL SystemParametersInfoW(UINT action, UINT parameter, void* data, UINT) {
  System* state = corvane::system::system();
  if (state == nullptr) return FALSE;
  SystemParameters& parameters = state->parameters;
  switch (action) {
    case SPI_SETDRAGFULLWINDOWS:
      parameters.drag_full_windows = parameter != 0 ? TRUE : FALSE;
      return TRUE;
    case SPI_SETMOUSEWHEELROUTING:
      parameters.wheel_routing = static_cast<DWORD>(
          parameter != 0 ? parameter : static_cast<UINT>(reinterpret_cast<UINT_PTR>(data)));
      return TRUE;
    default:
      break;
  }
  if (data == nullptr) return FALSE;
  switch (action) {
    case SPI_GETDRAGFULLWINDOWS:
      *static_cast<BOOL*>(data) = parameters.drag_full_windows;
      return TRUE;
    case SPI_GETWHEELSCROLLLINES:
      *static_cast<UINT*>(data) = parameters.wheel_lines;
      return TRUE;
    case SPI_GETMOUSEWHEELROUTING:
      *static_cast<DWORD*>(data) = parameters.wheel_routing;
      return TRUE;
    case SPI_GETWORKAREA:
      *static_cast<RECT*>(data) = state->work_area;
      return TRUE;
    default:
      return FALSE;
  }
}

namespace {

struct Metric {
  int index;
  int value;
};
// Those that do not depend on the screen.
constexpr Metric kMetrics[] = {
    {SM_CXVSCROLL, kBarThickness},
    {SM_CYHSCROLL, kBarThickness},
    {SM_CYCAPTION, kCaptionHeight},
    {SM_CXBORDER, kFlatBorder},
    {SM_CYBORDER, kFlatBorder},
    {SM_CXFIXEDFRAME, kFixedFrame},
    {SM_CYFIXEDFRAME, kFixedFrame},
    {SM_CYVTHUMB, kBarThickness},
    {SM_CXHTHUMB, kBarThickness},
    {SM_CYVSCROLL, kBarThickness},
    {SM_CXHSCROLL, kBarThickness},
    {SM_CXMIN, kMinTrackWidth},
    {SM_CYMIN, kMinTrackHeight},
    {SM_CXSIZE, kBoxWidth},
    {SM_CYSIZE, kCaptionHeight},
    {SM_CXSIZEFRAME, kSizeFrame},
    {SM_CYSIZEFRAME, kSizeFrame},
    {SM_CXMINTRACK, kMinTrackWidth},
    {SM_CYMINTRACK, kMinTrackHeight},
    {SM_CXDOUBLECLK, 4},
    {SM_CYDOUBLECLK, 4},
    {SM_CXDRAG, 4},
    {SM_CYDRAG, 4},
    {SM_MOUSEPRESENT, 1},
    {SM_CMONITORS, 1},
    {SM_CXEDGE, kEdge},
    {SM_CYEDGE, kEdge},
    {SM_CYSMCAPTION, kSmallCaptionHeight},
    {SM_CXSMSIZE, kSmallBoxWidth},
    {SM_CYSMSIZE, kSmallCaptionHeight},
    {SM_CXMINIMIZED, kMinimizedWidth},
    {SM_CYMINIMIZED, kMinimizedHeight},
    {SM_CXMAXTRACK, kMaxWindowSize},
    {SM_CYMAXTRACK, kMaxWindowSize},
};

}  // namespace

int GetSystemMetrics(int index) {
  System* state = corvane::system::system();
  if (state == nullptr) return 0;
  switch (index) {
    case SM_CXSCREEN:
    case SM_CXFULLSCREEN:
    case SM_CXVIRTUALSCREEN:
      return state->frame.width();
    case SM_CYSCREEN:
    case SM_CYVIRTUALSCREEN:
      return state->frame.height();
    case SM_CYFULLSCREEN:
      return std::max(state->frame.height() - kCaptionHeight, 0);
    case SM_CXMAXIMIZED:
      return state->frame.width() + 2 * kSizeFrame;
    case SM_CYMAXIMIZED:
      return state->frame.height() + 2 * kSizeFrame;
    default:
      break;
  }
  const auto* row = std::ranges::find(kMetrics, index, &Metric::index);
  return row != std::end(kMetrics) ? row->value : 0;
}

int GetDeviceCaps(HDC dc, int index) {
  if (GetCurrentObject(dc, OBJ_BITMAP) == nullptr && GetCurrentObject(dc, OBJ_PEN) == nullptr) {
    return 0;
  }
  switch (index) {
    case HORZRES:
      return GetSystemMetrics(SM_CXSCREEN);
    case VERTRES:
      return GetSystemMetrics(SM_CYSCREEN);
    case BITSPIXEL:
      return 32;
    case PLANES:
      return 1;
    case LOGPIXELSX:
    case LOGPIXELSY:
      return 96;
    default:
      return 0;
  }
}

HMODULE GetModuleHandleW(LPCWSTR) { return reinterpret_cast<HMODULE>(ULONG_PTR{0x400000}); }

DWORD GetCurrentThreadId() {
  return static_cast<DWORD>(std::hash<std::thread::id>()(std::this_thread::get_id())) | 1u;
}

}  // namespace corvane_system
