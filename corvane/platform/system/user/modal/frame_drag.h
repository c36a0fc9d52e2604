#pragma once
// What moving and sizing with the mouse share: WM_ENTERSIZEMOVE and WM_EXITSIZEMOVE around it, the
// frame at the start, to which Escape goes back, Return to end it where it is.
#include "corvane/platform/system/user/modal/capture_loop.h"

namespace corvane::system {

class FrameDrag : public CaptureLoop {
 public:
  FrameDrag(System& state, HWND window);
  void run();

 protected:
  const RECT& start_frame() const { return start_frame_; }  // in the parent's client coordinates
  POINT start_pointer() const { return start_pointer_; }    // screen coordinates
  // From there. A pointer beyond the screen, which the native window's does not end, counts as at
  // its edge: something to take hold of stays on it.
  POINT travel_to(POINT pointer) const;
  const MINMAXINFO& limits() const { return limits_; }

  virtual bool may_go_back() const { return true; }
  // Asks the window about another frame by WM_MOVING or WM_SIZING and puts it where that says.
  void propose(RECT frame, UINT message, WPARAM wparam);

 private:
  Turn on_keyboard(const InputEvent& event) final;
  void place(const RECT& frame);

  RECT start_frame_;
  POINT start_pointer_;
  MINMAXINFO limits_{};
};

}  // namespace corvane::system
