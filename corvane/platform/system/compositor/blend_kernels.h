#pragma once
// The row loops of the compositor. All write `count` pixels with an alpha byte of 255 to `out`;
// `below` may be `out` itself or lie apart from it, `source` lies apart from both.
#include <cstddef>
#include <cstdint>

#include "corvane/platform/system/gdi/surface.h"

namespace corvane::system::blend {

constexpr Pixel kColorMask = 0x00FFFFFF;
constexpr Pixel kOpaqueBits = 0xFF000000;
constexpr Pixel kNoKey = 0xFFFFFFFF;  // equals no pixel's colour

void fill(Pixel* out, std::size_t count, Pixel color);
void copy(Pixel* out, const Pixel* source, std::size_t count);

// Constant alpha over opaque pixels: (source * alpha + below * (255 - alpha) + 127) / 255.
void uniform(Pixel* out, const Pixel* below, std::size_t count, Pixel color, std::uint8_t alpha);
void keyed(Pixel* out, const Pixel* below, const Pixel* source, std::size_t count, Pixel key,
           std::uint8_t alpha);

// Premultiplied pixel alpha, scaled by the constant alpha (see Layer).
void over_uniform(Pixel* out, const Pixel* below, std::size_t count, Pixel color,
                  std::uint8_t alpha);
void over(Pixel* out, const Pixel* below, const Pixel* source, std::size_t count, Pixel key,
          std::uint8_t alpha);

// Whether all pixels are the same as the first, alpha bytes included. True for none.
bool same(const Pixel* source, std::size_t count);

}  // namespace corvane::system::blend
