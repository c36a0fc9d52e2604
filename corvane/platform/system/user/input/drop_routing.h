#pragma once
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Sends dropped files to the window under the point, or to the nearest of its parents that takes
// files; where there is none they are refused.
void route_drop(System& state, const InputEvent& event);
// Frees what came with messages that nobody will retrieve.
void forget_drops(InputState& input, HWND window);

}  // namespace corvane::system
