#include "corvane/platform/system/user/modal/move_loop.h"

#include <algorithm>

#include "corvane/platform/system/user/input/input_routing.h"
#include "corvane/platform/system/user/messages/get_message.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/modal/modal_loop.h"
#include "corvane/platform/system/user/painting/presenting.h"

namespace corvane::system {
namespace {

constexpr std::uint64_t kNativeDragInterval = 8;  // milliseconds

enum class Step { go_on, done, cancelled };

class MoveLoop {
 public:
  MoveLoop(System& state, HWND window) : state_(state), window_(window) {
    const Window& found = *state.find(window);
    start_frame_ = found.frame;
    // Where the press was: the pointer may be further by now.
    start_pointer_ = state.input.routed_pointer;
    fills_screen_ = is_top_level(found) && EqualRect(&found.frame, &state.desktop->frame);
  }

  void run() {
    while (true) {
      if (state_.find(window_) == nullptr || state_.input.capture != window_) return;
      Step step = take_step();
      if (step == Step::cancelled) place(start_frame_);
      if (step != Step::go_on) return;
    }
  }

 private:
  Step take_step() {
    switch (work_in_modal_loop(state_)) {
      case ModalWork::dispatched:
        return Step::go_on;
      case ModalWork::input:
        return handle_event();
      case ModalWork::quit:
        return Step::done;
      case ModalWork::none:
        break;
    }
    return sleep() ? Step::go_on : Step::done;
  }

  // A native window that follows the pointer sees it stand still, so no input comes: look again and
  // again while it is dragged.
  bool sleep() {
    if (!dragging_natively_) return sleep_until_work(state_);
    present_now(state_);
    std::uint64_t soon = state_.now() + kNativeDragInterval;
    state_.display->wait(std::min(state_.timers.next_due().value_or(soon), soon));
    dragging_natively_ = state_.display->drag_native_window(start_pointer_);
    return true;
  }

  Step handle_event() {
    InputEvent event = state_.input.events.front();
    state_.input.events.pop_front();
    if (event.kind == InputKind::mouse_button) {
      state_.input.keys_retrieved[static_cast<std::size_t>(event.button & 0xFF)] = event.down;
      if (event.button == VK_LBUTTON && !event.down) {
        follow(event.position);
        return Step::done;
      }
    } else if (event.kind == InputKind::mouse_move) {
      follow(event.position);
    } else if (event.kind == InputKind::key && event.down) {
      if (event.virtual_key == VK_ESCAPE) return Step::cancelled;
      if (event.virtual_key == VK_RETURN) return Step::done;
    } else if (event.kind == InputKind::resize || event.kind == InputKind::close ||
               event.kind == InputKind::focus) {
      state_.input.events.push_front(event);
      route_next_event(state_);
    }
    return Step::go_on;
  }

  void follow(POINT pointer) {
    dragging_natively_ = fills_screen_ && state_.display->drag_native_window(start_pointer_);
    if (dragging_natively_) return;
    RECT frame = start_frame_;
    OffsetRect(&frame, pointer.x - start_pointer_.x, pointer.y - start_pointer_.y);
    Window* found = state_.find(window_);
    if (found == nullptr || EqualRect(&found->frame, &frame)) return;
    POINT base = client_origin(*found->parent);
    OffsetRect(&frame, base.x, base.y);
    send(window_, WM_MOVING, 0, reinterpret_cast<LPARAM>(&frame));
    OffsetRect(&frame, -base.x, -base.y);
    place(frame);
  }

  void place(const RECT& frame) {
    if (state_.find(window_) == nullptr) return;
    SetWindowPos(window_, nullptr, frame.left, frame.top, frame.right - frame.left,
                 frame.bottom - frame.top, SWP_NOZORDER | SWP_NOACTIVATE);
  }

  System& state_;
  HWND window_;
  RECT start_frame_{};
  POINT start_pointer_{};
  bool fills_screen_ = false;
  bool dragging_natively_ = false;
};

}  // namespace

void run_move_loop(HWND window) {
  System* state = system();
  if (state == nullptr || state->find(window) == nullptr) return;
  MoveLoop loop(*state, window);
  MINMAXINFO info{};
  send(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
  send(window, WM_ENTERSIZEMOVE);
  if (state->find(window) == nullptr) return;
  SetCapture(window);
  if (state->find(window) == nullptr) return;
  loop.run();
  if (state->input.capture == window) ReleaseCapture();
  send(window, WM_EXITSIZEMOVE);
}

}  // namespace corvane::system
