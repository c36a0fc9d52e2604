#pragma once
// What a program needs of the platform before its first window. On Windows: the drawing library's
// start and end. Elsewhere: a window system on the display that CORVANE_DISPLAY names ("headless",
// "sdl"), unless the thread has one already.
#include <memory>

namespace corvane {

class PlatformSession {
 public:
  PlatformSession();
  ~PlatformSession();
  PlatformSession(const PlatformSession&) = delete;
  PlatformSession& operator=(const PlatformSession&) = delete;

 private:
  struct Resources;
  std::unique_ptr<Resources> resources_;
};

}  // namespace corvane
