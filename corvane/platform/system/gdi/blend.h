#pragma once
// Row loops over premultiplied pixels.
#include <cstddef>

#include "corvane/platform/system/gdi/surface.h"

namespace corvane::system {

// below[i] = from[i] over below[i]; a channel is from + below * (255 - alpha) / 255, rounded.
void blend_over(Pixel* below, const Pixel* from, std::size_t count);

}  // namespace corvane::system
