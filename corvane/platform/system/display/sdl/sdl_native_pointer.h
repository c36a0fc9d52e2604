#pragma once
#include <optional>

#include "corvane/platform/system/types.h"

struct SDL_Window;

namespace corvane::system {

// Where the pointer is on the native desktop, now. SDL's own answer stands still on X while a
// button is held (raw motion is not reported during a grab), so there the server is asked.
POINT native_pointer_position(SDL_Window* window);

}  // namespace corvane::system
