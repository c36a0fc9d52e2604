#include "corvane/platform/system/user/modal/modal_loop.h"

#include "corvane/platform/system/user/input/input_routing.h"
#include "corvane/platform/system/user/messages/get_message.h"
#include "corvane/platform/system/user/messages/send_message.h"

namespace corvane::system {

ModalWork work_in_modal_loop(System& state) {
  if (auto message = take_posted(state, {}, true)) {
    TranslateMessage(&*message);
    DispatchMessageW(&*message);
    return ModalWork::dispatched;
  }
  poll_display(state);
  if (!state.input.events.empty()) return ModalWork::input;
  if (state.queue.take_quit(false)) return ModalWork::quit;
  auto message = take_paint(state, {});
  if (!message) message = take_timer(state, {}, true);
  if (!message) return ModalWork::none;
  DispatchMessageW(&*message);
  return ModalWork::dispatched;
}

}  // namespace corvane::system
