#include "corvane/platform/system/gdi/blend.h"

namespace corvane::system {

namespace {

// Two channels at once, 16 bits each: value * factor / 255, rounded.
Pixel scaled_pair(Pixel pair, Pixel factor) {
  const Pixel product = pair * factor + 0x00800080;
  return ((product + ((product >> 8) & 0x00FF00FF)) >> 8) & 0x00FF00FF;
}

}  // namespace

void blend_over(Pixel* below, const Pixel* from, std::size_t count) {
  for (std::size_t at = 0; at < count; ++at) {
    const Pixel rest = 255 - (from[at] >> 24);
    const Pixel even = scaled_pair(below[at] & 0x00FF00FF, rest);
    const Pixel odd = scaled_pair((below[at] >> 8) & 0x00FF00FF, rest);
    below[at] = from[at] + even + (odd << 8);
  }
}

}  // namespace corvane::system
