#include "corvane/platform/system/user/modal/modal_loop.h"

#include <utility>

#include "corvane/platform/system/user/input/cursors.h"
#include "corvane/platform/system/user/input/input_routing.h"
#include "corvane/platform/system/user/messages/get_message.h"
#include "corvane/platform/system/user/painting/presenting.h"

namespace corvane::system {

void ModalLoop::run_turns() {
  while (wanted() && take_turn() == Turn::more) {
  }
}

// In the order of retrieve(), but an event comes to the loop and not to a window.
ModalLoop::Turn ModalLoop::take_turn() {
  advance_cursor(state_);
  present_if_late(state_);
  if (const auto message = take_posted(state_, {}, true)) {
    state_.last_message = *message;
    TranslateMessage(&*message);
    DispatchMessageW(&*message);
    return Turn::more;
  }
  poll_display(state_);
  if (!state_.input.events.empty()) {
    const InputEvent event = std::move(state_.input.events.front());
    state_.input.events.pop_front();
    state_.last_message = make_message(state_, nullptr, WM_NULL, 0, 0);
    return on_input(event);
  }
  if (state_.queue.take_quit(false)) return Turn::last;
  auto message = take_paint(state_, {});
  if (!message) message = take_timer(state_, {}, true);
  if (!message) return on_idle();
  state_.last_message = *message;
  DispatchMessageW(&*message);
  return Turn::more;
}

ModalLoop::Turn ModalLoop::sleep(std::optional<std::uint64_t> deadline) {
  return sleep_until_work(state_, deadline) ? Turn::more : Turn::last;
}

void ModalLoop::remember_button(const InputEvent& event) {
  state_.input.keys_retrieved[static_cast<std::size_t>(event.button & 0xFF)] = event.down;
}

}  // namespace corvane::system
