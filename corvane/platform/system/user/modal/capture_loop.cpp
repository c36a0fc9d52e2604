#include "corvane/platform/system/user/modal/capture_loop.h"

#include "corvane/platform/system/user/input/input_routing.h"
#include "corvane/platform/system/user/input/keyboard_routing.h"

namespace corvane::system {

CaptureLoop::End CaptureLoop::run_captured() {
  run_turns();
  if (state_.input.capture == window_) ReleaseCapture();
  return end_;
}

bool CaptureLoop::wanted() const {
  return held_window() != nullptr && state_.input.capture == window_;
}

ModalLoop::Turn CaptureLoop::cancel() {
  end_ = End::cancelled;
  return Turn::last;
}

ModalLoop::Turn CaptureLoop::on_keyboard(const InputEvent& event) {
  if (event.kind == InputKind::key && event.down && event.virtual_key == VK_ESCAPE) {
    remember_key(state_, event);
    return cancel();
  }
  route_event(state_, event);
  return Turn::more;
}

ModalLoop::Turn CaptureLoop::on_input(const InputEvent& event) {
  switch (event.kind) {
    case InputKind::mouse_button:
      remember_button(event);
      follow(event.position);
      if (event.button != VK_LBUTTON || event.down) return Turn::more;
      end_ = End::released;
      return Turn::last;
    case InputKind::mouse_move:
      follow(event.position);
      return Turn::more;
    case InputKind::mouse_wheel:
    case InputKind::mouse_leave:
      return Turn::more;
    case InputKind::key:
    case InputKind::text:
      return on_keyboard(event);
    default:
      route_event(state_, event);
      return Turn::more;
  }
}

}  // namespace corvane::system
