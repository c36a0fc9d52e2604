#include "corvane/platform/system/display/sdl/sdl_native_pointer.h"

#include <SDL.h>
#include <SDL_syswm.h>
#include <X11/Xlib.h>

namespace corvane::system {
namespace {

std::optional<POINT> ask_x_server(SDL_Window* window) {
  SDL_SysWMinfo info;
  SDL_VERSION(&info.version);
  if (!SDL_GetWindowWMInfo(window, &info) || info.subsystem != SDL_SYSWM_X11) return std::nullopt;
  ::Window root = 0;
  ::Window child = 0;
  int x = 0;
  int y = 0;
  int window_x = 0;
  int window_y = 0;
  unsigned keys = 0;
  if (!XQueryPointer(info.info.x11.display, info.info.x11.window, &root, &child, &x, &y, &window_x,
                     &window_y, &keys)) {
    return std::nullopt;
  }
  return POINT{x, y};
}

}  // namespace

POINT native_pointer_position(SDL_Window* window) {
  if (std::optional<POINT> asked = ask_x_server(window)) return *asked;
  int x = 0;
  int y = 0;
  SDL_GetGlobalMouseState(&x, &y);
  return {x, y};
}

}  // namespace corvane::system
