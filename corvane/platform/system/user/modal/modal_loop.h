#pragma once
// A loop that runs inside a handler until its user is done: dragging a window, working a scroll
// bar. Messages, painting and timers go on meanwhile; the input is the loop's. Ends by itself when
// WM_QUIT waits, which stays in the queue.
#include <cstdint>
#include <optional>

#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

class ModalLoop {
 public:
  ModalLoop(const ModalLoop&) = delete;
  ModalLoop& operator=(const ModalLoop&) = delete;

 protected:
  enum class Turn { more, last };

  explicit ModalLoop(System& state) : state_(state) {}
  virtual ~ModalLoop() = default;

  void run_turns();

  // Asked before each turn, whose handlers may have changed everything.
  virtual bool wanted() const = 0;
  // Takes one event. What the loop does not want for itself it gives to route_event().
  virtual Turn on_input(const InputEvent& event) = 0;
  // Nothing waits. Sleeps until something does.
  virtual Turn on_idle() { return sleep(std::nullopt); }

  // At the latest until that time of the display's clock.
  Turn sleep(std::optional<std::uint64_t> deadline);
  // What every loop remembers of a mouse button, as if a window had got it.
  void remember_button(const InputEvent& event);

  System& state_;

 private:
  Turn take_turn();
};

}  // namespace corvane::system
