#include "corvane/platform/system/user/modal_work.h"

#include "corvane/platform/system/user/input_routing.h"
#include "corvane/platform/system/user/messages.h"
#include "corvane/platform/system/user/retrieval.h"

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
