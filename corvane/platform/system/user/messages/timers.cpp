// SetTimer, KillTimer and the clock that they go by.
#include "corvane/platform/system/user/system_state.h"

namespace corvane_system {
using namespace corvane::system;

DWORD GetTickCount() {
  const System* state = corvane::system::system();
  return state == nullptr ? 0 : static_cast<DWORD>(state->now());
}

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT period, TIMERPROC procedure) {
  System* state = corvane::system::system();
  if (state == nullptr || (window != nullptr && checked(window) == nullptr)) return 0;
  return state->timers.set(window, id, period, procedure, state->now());
}

BOOL KillTimer(HWND window, UINT_PTR id) {
  System* state = corvane::system::system();
  return state != nullptr && state->timers.kill(window, id) ? TRUE : FALSE;
}

}  // namespace corvane_system
