#include "corvane/platform/system/user/modal/frame_drag.h"

#include <algorithm>

#include "corvane/platform/geometry.h"
#include "corvane/platform/system/user/input/keyboard_routing.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/windows/size_limits.h"

namespace corvane::system {

// The pointer counts from where the press was: it may be further by now.
FrameDrag::FrameDrag(System& state, HWND window)
    : CaptureLoop(state, window),
      start_frame_(held_window()->frame),
      start_pointer_(state.input.routed_pointer) {}

void FrameDrag::run() {
  limits_ = ask_limits(window_);
  send(window_, WM_ENTERSIZEMOVE);
  if (held_window() == nullptr) return;
  SetCapture(window_);
  if (held_window() == nullptr) return;
  run_captured();
  send(window_, WM_EXITSIZEMOVE);
}

POINT FrameDrag::travel_to(POINT pointer) const {
  const RECT& screen = state_.desktop->frame;
  const int x = clamp_coordinate(pointer.x, 0, std::max<int>(screen.right - 1, 0));
  const int y = clamp_coordinate(pointer.y, 0, std::max<int>(screen.bottom - 1, 0));
  return {x - start_pointer_.x, y - start_pointer_.y};
}

ModalLoop::Turn FrameDrag::on_keyboard(const InputEvent& event) {
  if (event.kind == InputKind::key) remember_key(state_, event);
  if (event.kind != InputKind::key || !event.down) return Turn::more;
  if (event.virtual_key == VK_ESCAPE) {
    if (may_go_back()) place(start_frame_);
    return cancel();
  }
  return event.virtual_key == VK_RETURN ? Turn::last : Turn::more;
}

void FrameDrag::propose(RECT frame, UINT message, WPARAM wparam) {
  const Window* found = held_window();
  if (found == nullptr || EqualRect(&found->frame, &frame)) return;
  const POINT base = client_origin(*found->parent);
  OffsetRect(&frame, base.x, base.y);
  send(window_, message, wparam, reinterpret_cast<LPARAM>(&frame));
  OffsetRect(&frame, -base.x, -base.y);
  place(frame);
}

void FrameDrag::place(const RECT& frame) {
  if (held_window() == nullptr) return;
  SetWindowPos(window_, nullptr, frame.left, frame.top, clamp_coordinate(width_of(frame)),
               clamp_coordinate(height_of(frame)), SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace corvane::system
