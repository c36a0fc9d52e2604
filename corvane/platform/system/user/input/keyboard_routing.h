#pragma once
// Key events: to the focus window, or to the active one as system keys.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// What is remembered of a key as if a window had got it; whether it was down before.
bool remember_key(System& state, const InputEvent& event);
void route_key(System& state, const InputEvent& event);
void route_text(System& state, const InputEvent& event);

}  // namespace corvane::system
