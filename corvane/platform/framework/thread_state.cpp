#include "corvane/platform/framework/thread_state.h"

namespace corvane {
namespace {

thread_local ThreadState* live_state = nullptr;
thread_local bool thread_ended = false;

struct StateOwner {
  ThreadState state;
  StateOwner() { live_state = &state; }
  ~StateOwner() {
    // They look for their thread's state when they end.
    state.handles.release_temporaries();
    live_state = nullptr;
    thread_ended = true;
  }
};

}  // namespace

ThreadState& ThreadState::current() {
  if (live_state != nullptr) return *live_state;
  // An application object of static storage closes its windows after the thread's own objects have
  // gone; what it needs by then lasts until the process ends.
  if (thread_ended) return *(live_state = new ThreadState);
  thread_local StateOwner owner;
  return owner.state;
}

}  // namespace corvane
