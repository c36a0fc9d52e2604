#pragma once
// A modal loop that holds the mouse for a window: until the left button is released, Escape is
// pressed, somebody takes the capture, or the window is gone.
#include "corvane/platform/system/user/modal/modal_loop.h"

namespace corvane::system {

class CaptureLoop : public ModalLoop {
 protected:
  enum class End { released, cancelled, lost };

  CaptureLoop(System& state, HWND window) : ModalLoop(state), window_(window) {}

  // Runs with the mouse captured, for which SetCapture was called, and gives it back if it is still
  // the window's.
  End run_captured();

  // Where the mouse is: at each of its events, the release among them.
  virtual void follow(POINT pointer) = 0;
  // A key or text. Unless a loop wants it otherwise, Escape cancels and the rest waits until the
  // mouse is free.
  virtual Turn on_keyboard(const InputEvent& event);
  bool wanted() const override;

  Turn cancel();
  Window* held_window() const { return state_.find(window_); }  // null: gone

  const HWND window_;

 private:
  Turn on_input(const InputEvent& event) final;

  End end_ = End::lost;
};

}  // namespace corvane::system
