#include "corvane/platform/system/user/modal/box_loop.h"

#include "corvane/platform/system/user/frames/frame_painting.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/modal/capture_loop.h"

namespace corvane::system {
namespace {

class BoxLoop : public CaptureLoop {
 public:
  BoxLoop(System& state, HWND window, int box) : CaptureLoop(state, window), box_(box) {}

  bool run() {
    SetCapture(window_);
    show(true);
    const End end = run_captured();
    const bool chosen = end == End::released && over_box_;
    show(false);
    return chosen && held_window() != nullptr;
  }

 private:
  // The window's own answer: a program may have its boxes elsewhere.
  void follow(POINT pointer) override {
    const LPARAM point = MAKELPARAM(static_cast<WORD>(pointer.x), static_cast<WORD>(pointer.y));
    show(send(window_, WM_NCHITTEST, 0, point) == box_);
  }

  void show(bool over_box) {
    over_box_ = over_box;
    Window* found = held_window();
    const int pressed = over_box ? box_ : HTNOWHERE;
    if (found == nullptr || found->pressed_box == pressed) return;
    found->pressed_box = pressed;
    paint_frame(*found);
  }

  int box_;
  bool over_box_ = true;
};

}  // namespace

bool run_box_loop(HWND window, int box) {
  System* state = system();
  return state != nullptr && BoxLoop(*state, window, box).run();
}

}  // namespace corvane::system
