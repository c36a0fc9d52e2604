#include "corvane/platform/system/user/system_registry.h"

#include <cassert>
#include <map>
#include <mutex>

#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {
namespace {

constexpr int kTagShift = 40;

struct Registry {
  std::mutex mutex;
  std::map<std::uintptr_t, System*> systems;
  std::uintptr_t last_tag = 0;
};

// Never destroyed: systems of static storage end after it would.
Registry& registry() {
  static Registry& instance = *new Registry;
  return instance;
}

}  // namespace

std::uintptr_t register_system(System* state) {
  Registry& all = registry();
  const std::lock_guard lock(all.mutex);
  do {
    all.last_tag = (all.last_tag + 1) & 0xFFFF;
  } while (all.last_tag == 0 || all.systems.count(all.last_tag) != 0);
  all.systems[all.last_tag] = state;
  return all.last_tag << kTagShift;
}

void unregister_system(std::uintptr_t tag) {
  Registry& all = registry();
  const std::lock_guard lock(all.mutex);
  assert(all.systems.count(tag >> kTagShift) == 1);
  all.systems.erase(tag >> kTagShift);
}

MessageQueue::Posted post_from_any_thread(const MSG& message) {
  Registry& all = registry();
  const std::lock_guard lock(all.mutex);
  auto it = all.systems.find(reinterpret_cast<std::uintptr_t>(message.hwnd) >> kTagShift);
  if (it == all.systems.end()) return MessageQueue::Posted::no_window;
  const MessageQueue::Posted done = it->second->queue.post(message);
  if (done == MessageQueue::Posted::yes) it->second->display->wake();
  return done;
}

}  // namespace corvane::system
