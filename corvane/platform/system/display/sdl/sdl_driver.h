#pragma once
#include <SDL.h>

#include <string_view>

namespace corvane::system {

// Whether SDL reaches the desktop by this driver of its own ("x11", "wayland" ...).
inline bool is_driver(std::string_view name) {
  const char* const driver = SDL_GetCurrentVideoDriver();
  return driver != nullptr && name == driver;
}

}  // namespace corvane::system
