#pragma once
// A surface's pixels as the bytes of a file.
#include <cstdint>
#include <vector>

#include "corvane/platform/system/gdi/gdiplus.h"
#include "corvane/platform/system/gdi/surface.h"

namespace corvane::system {

enum class Opacity { opaque, pixel_alpha };

// `part` in surface pixels, cut to the surface. With Opacity::opaque alpha bytes are ignored.
// Empty when the part is empty or memory is short.
std::vector<std::uint8_t> encode_png(const Surface& surface, const RECT& part,
                                     Opacity opacity = Opacity::opaque);
// A part of a picture, as in the file that it came from to the byte: colours below small opacities
// too.
std::vector<std::uint8_t> encode_png(const corvane_system::Gdiplus::Image& image, const RECT& part);
// The same as JPEG, on white by the pixels' alpha.
std::vector<std::uint8_t> encode_jpeg(const Surface& surface, const RECT& part);

}  // namespace corvane::system
