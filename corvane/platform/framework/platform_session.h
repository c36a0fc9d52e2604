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

// Opens one for the calling thread's application object (win_app.h), which keeps it until it or its
// thread ends; nothing when it has one. RunApp, PumpMessages, and whatever makes window classes,
// windows, fonts, pens, brushes or images call it; only who calls the platform's own functions
// before any of these has to. False: the thread has no application object, or is ending.
bool open_platform_session();

}  // namespace corvane
