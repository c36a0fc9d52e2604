// SystemParametersInfoW and the other facts about the system.
#include <thread>

#include "corvane/platform/system/user/scroll_bars/scroll_bars.h"

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
      *static_cast<RECT*>(data) = state->desktop->frame;
      return TRUE;
    default:
      return FALSE;
  }
}

int GetSystemMetrics(int index) {
  System* state = corvane::system::system();
  if (state == nullptr) return 0;
  switch (index) {
    case SM_CXSCREEN:
      return state->frame.width();
    case SM_CYSCREEN:
      return state->frame.height();
    case SM_CXVSCROLL:
    case SM_CYHSCROLL:
    case SM_CYVTHUMB:
    case SM_CXHTHUMB:
    case SM_CYVSCROLL:
    case SM_CXHSCROLL:
      return kBarThickness;
    case SM_CXDOUBLECLK:
    case SM_CYDOUBLECLK:
      return 4;
    default:
      return 0;
  }
}

HMODULE GetModuleHandleW(LPCWSTR) { return reinterpret_cast<HMODULE>(ULONG_PTR{0x400000}); }

DWORD GetCurrentThreadId() {
  return static_cast<DWORD>(std::hash<std::thread::id>()(std::this_thread::get_id())) | 1u;
}

}  // namespace corvane_system
