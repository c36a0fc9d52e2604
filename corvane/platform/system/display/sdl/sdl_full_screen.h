#pragma once
#include <SDL.h>

#include "corvane/platform/system/types.h"

namespace corvane::system {

// One native window that fills its monitor, and comes back to its former place and size.
class SdlFullScreen {
 public:
  explicit SdlFullScreen(SDL_Window* window) : window_(window) {}

  bool active() const { return active_; }
  void set(bool active);
  SIZE monitor_size() const;  // pixels; (0, 0): not known

 private:
  SDL_Rect monitor() const;

  SDL_Window* window_;
  bool active_ = false;
  SDL_Rect former_{};
};

}  // namespace corvane::system
