#include "corvane/platform/system/display/sdl/sdl_full_screen.h"

#include <SDL_syswm.h>
#include <X11/Xlib.h>

namespace corvane::system {
namespace {

// Where nobody manages the windows of an X server, SDL's full screen is a wish that nobody hears.
bool is_unmanaged(SDL_Window* window) {
  SDL_SysWMinfo info;
  SDL_VERSION(&info.version);
  if (!SDL_GetWindowWMInfo(window, &info) || info.subsystem != SDL_SYSWM_X11) return false;
  ::Display* const server = info.info.x11.display;
  const Atom name = XInternAtom(server, "_NET_SUPPORTING_WM_CHECK", False);
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long rest = 0;
  unsigned char* value = nullptr;
  XGetWindowProperty(server, DefaultRootWindow(server), name, 0, 1, False, AnyPropertyType, &type,
                     &format, &count, &rest, &value);
  if (value != nullptr) XFree(value);
  return count == 0;
}

}  // namespace

SDL_Rect SdlFullScreen::monitor() const {
  SDL_Rect bounds{};
  const int index = SDL_GetWindowDisplayIndex(window_);
  if (index >= 0) SDL_GetDisplayBounds(index, &bounds);
  return bounds;
}

SIZE SdlFullScreen::monitor_size() const {
  const SDL_Rect bounds = monitor();
  return {bounds.w, bounds.h};
}

void SdlFullScreen::set(bool active) {
  if (active == active_) return;
  active_ = active;
  if (!is_unmanaged(window_)) {
    SDL_SetWindowFullscreen(window_, active ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0);
    return;
  }
  if (active) {
    SDL_GetWindowPosition(window_, &former_.x, &former_.y);
    SDL_GetWindowSize(window_, &former_.w, &former_.h);
  }
  const SDL_Rect target = active ? monitor() : former_;
  SDL_SetWindowPosition(window_, target.x, target.y);
  SDL_SetWindowSize(window_, target.w, target.h);
}

}  // namespace corvane::system
