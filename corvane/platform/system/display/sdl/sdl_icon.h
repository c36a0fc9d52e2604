#pragma once
#include "corvane/platform/system/gdi/surface.h"

struct SDL_Window;

namespace corvane::system {

// Gives the native window this icon, where its desktop shows icons of windows.
void show_icon(SDL_Window* window, const Surface& pixels);

}  // namespace corvane::system
