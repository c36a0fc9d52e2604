#pragma once
// What the framework knows of the calling thread's windows.
#include <set>
#include <string>

#include "corvane/platform/framework/handle_maps.h"
#include "corvane/platform/platform.h"

namespace corvane {

class WindowHook;

struct ThreadState {
  HandleMaps handles;
  const MSG* message = nullptr;    // the innermost one being handled
  bool default_done = false;       // its default handling has run
  int depth = 0;                   // of messages being handled
  WindowHook* creation = nullptr;  // the innermost creation under way
  std::set<std::wstring> class_names;

  static ThreadState& current();
};

// A message is being handled, until the end of the scope.
class MessageScope {
 public:
  MessageScope(ThreadState& state, const MSG& message)
      : state_(state), outer_(state.message), outer_default_done_(state.default_done) {
    state_.message = &message;
    state_.default_done = false;
    ++state_.depth;
  }
  ~MessageScope() {
    state_.message = outer_;
    state_.default_done = outer_default_done_;
    --state_.depth;
  }
  MessageScope(const MessageScope&) = delete;
  MessageScope& operator=(const MessageScope&) = delete;

 private:
  ThreadState& state_;
  const MSG* outer_;
  bool outer_default_done_;
};

}  // namespace corvane
