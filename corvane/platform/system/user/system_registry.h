#pragma once
// The live window systems by the tag in their handles, so that PostMessageW finds the right queue
// from a thread that has no window system. Guarded by a lock; holds nothing else.
#include <cstdint>

#include "corvane/platform/system/user/messages/message_queue.h"
#include "corvane/platform/system/user/window_system.h"

namespace corvane::system {

std::uintptr_t register_system(WindowSystem::Impl* state);  // returns its tag
void unregister_system(std::uintptr_t tag);
// Posts to the system that made the handle and wakes it.
MessageQueue::Posted post_from_any_thread(const MSG& message);

}  // namespace corvane::system
