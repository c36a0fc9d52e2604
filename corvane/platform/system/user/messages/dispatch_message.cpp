#include "corvane/platform/system/user/messages/send_message.h"

namespace corvane_system {
using namespace corvane::system;

LRESULT DispatchMessageW(const MSG* message) {
  System* state = corvane::system::system();
  if (message == nullptr || state == nullptr) return 0;
  const DispatchScope scope(state->sends);
  if (message->message == WM_TIMER && message->lParam != 0) {
    const auto procedure = reinterpret_cast<TIMERPROC>(message->lParam);
    if (state->timers.knows(procedure)) {
      procedure(message->hwnd, WM_TIMER, message->wParam, GetTickCount());
    }
    return 0;
  }
  if (message->hwnd == nullptr || checked(message->hwnd) == nullptr) return 0;
  return send(message->hwnd, message->message, message->wParam, message->lParam);
}

}  // namespace corvane_system
