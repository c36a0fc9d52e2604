// Dragging a side or a corner of a window.
#include "corvane/platform/system/user/frames/frame_sides.h"
#include "corvane/platform/system/user/modal/frame_drag.h"
#include "corvane/platform/system/user/modal/move_loop.h"

namespace corvane::system {
namespace {

class SizeLoop : public FrameDrag {
 public:
  SizeLoop(System& state, HWND window, int side) : FrameDrag(state, window), side_(side) {}

 private:
  void follow(POINT pointer) override {
    const RECT frame = sized_frame(start_frame(), side_, travel_to(pointer), limits());
    propose(frame, WM_SIZING, static_cast<WPARAM>(side_));
  }

  int side_;
};

}  // namespace

void run_size_loop(HWND window, int side) {
  System* state = system();
  const Window* found = state == nullptr ? nullptr : state->find(window);
  if (found == nullptr || side < WMSZ_LEFT || side > WMSZ_BOTTOMRIGHT) return;
  if ((found->style & (WS_MAXIMIZE | WS_MINIMIZE)) != 0) return;
  SizeLoop(*state, window, side).run();
}

}  // namespace corvane::system
