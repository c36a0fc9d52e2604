#pragma once
// The WH_CBT hooks. After every call of one any window may be gone.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Asks the hooks, the newest first; false when one refuses the creation.
bool ask_creation_hooks(HWND window, CREATESTRUCTW& create);

}  // namespace corvane::system
