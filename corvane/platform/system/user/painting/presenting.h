#pragma once
// From the windows' surfaces to the display.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Composes what the surfaces marked and what windows uncovered; returns that damage.
Region compose_damage(System& state);
void present_now(System& state);
// Shows finished pictures while messages keep coming, so that a busy program is still seen.
void present_if_late(System& state);

}  // namespace corvane::system
