#include <algorithm>

#include "corvane/platform/geometry.h"
#include "corvane/platform/system/compositor/compositor.h"

namespace corvane::system {

namespace {

int channel(Pixel pixel, int shift) { return static_cast<int>((pixel >> shift) & 0xFF); }

int weighted(int source, int below, int alpha) {
  return (source * alpha + below * (255 - alpha) + 127) / 255;
}

int blended_channel(const Layer& layer, Pixel source, int below, int shift) {
  if (!layer.pixel_alpha) return weighted(channel(source, shift), below, layer.alpha);
  const int scaled = weighted(channel(source, shift), 0, layer.alpha);
  const int coverage = weighted(channel(source, 24), 0, layer.alpha);
  return std::min(255, scaled + weighted(0, below, coverage));
}

Pixel over_layer(const Layer& layer, int x, int y, Pixel below) {
  if (!layer.surface || !contains(layer.clip, x, y)) return below;
  const std::int64_t source_x = std::int64_t{x} - layer.origin.x;
  const std::int64_t source_y = std::int64_t{y} - layer.origin.y;
  if (!contains(layer.surface->rect(), source_x, source_y)) return below;
  const Pixel source = layer.surface->at(static_cast<int>(source_x), static_cast<int>(source_y));
  if (layer.keyed && (source & 0x00FFFFFF) == (layer.key & 0x00FFFFFF)) return below;
  Pixel result = 0;
  for (const int shift : {0, 8, 16}) {
    const int value = blended_channel(layer, source, channel(below, shift), shift);
    result |= static_cast<Pixel>(value) << shift;
  }
  return result;
}

void compose_pixel(Surface& frame, int x, int y, const std::vector<Layer>& layers,
                   Pixel background) {
  Pixel pixel = background;
  for (const Layer& layer : layers) pixel = over_layer(layer, x, y, pixel);
  frame.row(y)[x] = pixel | 0xFF000000;
}

}  // namespace

void compose_reference(Surface& frame, const Region& damage, const std::vector<Layer>& layers,
                       Pixel background) {
  Region inside_frame = damage;
  inside_frame.intersect(frame.rect());
  for (const RECT& rect : inside_frame.rects()) {
    for (int y = rect.top; y < rect.bottom; ++y) {
      for (int x = rect.left; x < rect.right; ++x) compose_pixel(frame, x, y, layers, background);
    }
  }
}

}  // namespace corvane::system
