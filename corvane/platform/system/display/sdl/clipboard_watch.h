#pragma once
#include <SDL.h>

namespace corvane::system {

// Notices that another program of the desktop copied something. SDL tells of it on Wayland; on X it
// tells only of the first that follows a copy of our own, so the server is asked for notices.
class ClipboardWatch {
 public:
  void start(SDL_Window* window);
  bool tells_of_change(const SDL_Event& event) const;

 private:
  int notice_ = -1;  // the X event's number
};

}  // namespace corvane::system
