// What the message retrieved last tells besides its parameters.
#include "corvane/platform/system/user/system_state.h"

namespace corvane_system {
using namespace corvane::system;

DWORD GetMessagePos() {
  const System* const state = corvane::system::system();
  if (state == nullptr) return 0;
  const POINT point = state->last_message.pt;
  return MAKELONG(static_cast<WORD>(point.x), static_cast<WORD>(point.y));
}

LONG GetMessageTime() {
  const System* const state = corvane::system::system();
  return state == nullptr ? 0 : static_cast<LONG>(state->last_message.time);
}

}  // namespace corvane_system
