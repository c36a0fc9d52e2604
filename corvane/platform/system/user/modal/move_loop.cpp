#include "corvane/platform/system/user/modal/move_loop.h"

#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/modal/frame_drag.h"

namespace corvane::system {
namespace {

constexpr std::uint64_t kNativeDragInterval = 8;  // milliseconds

class MoveLoop : public FrameDrag {
 public:
  using FrameDrag::FrameDrag;

 private:
  // A native window that follows the pointer sees it stand still, so no input comes: look again and
  // again while it is dragged.
  Turn on_idle() override {
    if (!dragging_natively_) return sleep(std::nullopt);
    sleep(state_.now() + kNativeDragInterval);
    dragging_natively_ = state_.display->drag_native_window(start_pointer());
    return Turn::more;
  }

  // Asked anew each time: the native window's size may change meanwhile, and that window's with it.
  bool fills_screen() const {
    const Window* found = held_window();
    if (found == nullptr || !is_top_level(*found)) return false;
    return (found->style & WS_MAXIMIZE) != 0 ||
           EqualRect(&found->frame, &state_.desktop->frame) != 0;
  }

  bool may_go_back() const override { return !fills_screen(); }

  void follow(POINT pointer) override {
    if (fills_screen()) {
      // Moving it inside the native window would only uncover what lies behind it.
      dragging_natively_ = state_.display->drag_native_window(start_pointer());
      return;
    }
    RECT frame = start_frame();
    const POINT travel = travel_to(pointer);
    OffsetRect(&frame, travel.x, travel.y);
    propose(frame, WM_MOVING, 0);
  }

  bool dragging_natively_ = false;
};

}  // namespace

void run_move_loop(HWND window) {
  System* state = system();
  if (state != nullptr && state->find(window) != nullptr) MoveLoop(*state, window).run();
}

}  // namespace corvane::system
