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

class MoveLoop : public ModalLoop {
 public:
  MoveLoop(System& state, HWND window) : ModalLoop(state), window_(window) {
    const Window& found = *state.find(window);
    start_frame_ = found.frame;
    // Where the press was: the pointer may be further by now.
    start_pointer_ = state.input.routed_pointer;
  }

  void run() { run_turns(); }

 private:
  bool wanted() const override {
    return state_.find(window_) != nullptr && state_.input.capture == window_;
  }

  // A native window that follows the pointer sees it stand still, so no input comes: look again and
  // again while it is dragged.
  Turn on_idle() override {
    if (!dragging_natively_) return sleep(std::nullopt);
    sleep(state_.now() + kNativeDragInterval);
    dragging_natively_ = state_.display->drag_native_window(start_pointer_);
    return Turn::more;
  }

  Turn on_input(const InputEvent& event) override {
    switch (event.kind) {
      case InputKind::mouse_button:
        remember_button(event);
        if (event.button != VK_LBUTTON || event.down) return Turn::more;
        follow(event.position);
        return Turn::last;
      case InputKind::mouse_move:
        follow(event.position);
        return Turn::more;
      case InputKind::key:
        return event.down ? on_key(event.virtual_key) : Turn::more;
      case InputKind::resize:
      case InputKind::close:
      case InputKind::focus:
        route_event(state_, event);
        return Turn::more;
      default:
        return Turn::more;
    }
  }

  Turn on_key(int virtual_key) {
    if (virtual_key == VK_ESCAPE && !fills_screen()) place(start_frame_);
    return virtual_key == VK_ESCAPE || virtual_key == VK_RETURN ? Turn::last : Turn::more;
  }

  // Asked anew each time: the native window's size may change meanwhile, and that window's with it.
  bool fills_screen() const {
    const Window* found = state_.find(window_);
    return found != nullptr && is_top_level(*found) &&
           EqualRect(&found->frame, &state_.desktop->frame) != 0;
  }

  void follow(POINT pointer) {
    if (fills_screen()) {
      // Moving it inside the native window would only uncover what lies behind it.
      dragging_natively_ = state_.display->drag_native_window(start_pointer_);
      return;
    }
    RECT frame = start_frame_;
    OffsetRect(&frame, pointer.x - start_pointer_.x, pointer.y - start_pointer_.y);
    const Window* found = state_.find(window_);
    if (found == nullptr || EqualRect(&found->frame, &frame)) return;
    const POINT base = client_origin(*found->parent);
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

  HWND window_;
  RECT start_frame_{};
  POINT start_pointer_{};
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
