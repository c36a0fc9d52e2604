#pragma once
#include <SDL.h>

#include <optional>

#include "corvane/platform/system/display/wake_event.h"

namespace corvane::system {

// Sleeps until SDL has an event, or a call from another thread. Under X11 it watches the connection
// to the server; elsewhere SDL does the waiting, which looks around every millisecond with drivers
// that cannot sleep. Hosts get the connection to watch from X11 and from Wayland.
class SdlWaiter {
 public:
  explicit SdlWaiter(SDL_Window* window);
  ~SdlWaiter();
  SdlWaiter(const SdlWaiter&) = delete;
  SdlWaiter& operator=(const SdlWaiter&) = delete;

  void wait(std::optional<int> milliseconds);  // nothing: for ever
  void wake();                                 // from any thread
  void clear_wake();
  // To be called after a round trip to the server, which may have read events that the descriptor
  // no longer tells of.
  void notice_queued_events();
  // Input methods answer over a connection that nobody can watch: while text is edited the wait
  // ends some twenty-five times a second.
  void look_often(bool often);
  int fd() const { return watched_; }  // -1: there is nothing to watch

 private:
  WakeEvent wake_;
  bool sleeps_on_it_;  // Wayland's repeated keys are SDL's own work, which only its waiting does
  int ticks_;          // a timer's descriptor; -1: there is none
  bool often_ = false;
  int watched_;  // readable: input, a wake or a tick
};

}  // namespace corvane::system
