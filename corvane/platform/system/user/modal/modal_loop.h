#pragma once
// What a loop that runs inside a handler, for a drag, does in each of its turns.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

enum class ModalWork { dispatched, input, quit, none };

// Dispatches one message, in the order of retrieve(). Input is not routed: the loop takes the first
// of the waiting events itself (ModalWork::input).
ModalWork work_in_modal_loop(System& state);

}  // namespace corvane::system
