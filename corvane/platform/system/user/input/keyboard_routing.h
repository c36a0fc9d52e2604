#pragma once
// Key events: to the focus window, or to the active one as system keys.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

void route_key(System& state, const InputEvent& event);
void route_text(System& state, const InputEvent& event);

}  // namespace corvane::system
