#include "corvane/platform/system/gdi/blits.h"

#include <algorithm>
#include <cstring>

#include "corvane/platform/geometry.h"

namespace corvane::system {

namespace {

RECT shifted(const RECT& rect, int dx, int dy) {
  return {offset_by(rect.left, dx), offset_by(rect.top, dy), offset_by(rect.right, dx),
          offset_by(rect.bottom, dy)};
}

void copy_row(Surface& target, const RECT& piece, int y, const Surface& source, POINT shift) {
  const Pixel* from = source.row_if_stored(y + shift.y);
  if (from == nullptr) {
    target.fill({piece.left, y, piece.right, y + 1}, source.uniform_row(y + shift.y));
    return;
  }
  Pixel* to = target.row_to_overwrite(y, piece.left, piece.right);
  std::memmove(to + piece.left, from + piece.left + shift.x,
               sizeof(Pixel) * static_cast<std::size_t>(piece.right - piece.left));
}

void copy_piece(Surface& target, const RECT& piece, const Surface& source, POINT shift) {
  if (&target == &source && shift.y < 0) {
    for (int y = piece.bottom - 1; y >= piece.top; --y) copy_row(target, piece, y, source, shift);
  } else {
    for (int y = piece.top; y < piece.bottom; ++y) copy_row(target, piece, y, source, shift);
  }
}

}  // namespace

void copy_pixels(DeviceContext& target, const RECT& area, const Surface& source, POINT shift) {
  Region touched = target.clip();
  touched.intersect(area);
  touched.intersect(shifted(source.rect(), -shift.x, -shift.y));
  if (touched.empty()) return;
  if (&source == target.surface.get() && touched.count() > 1) {
    const Surface unchanged(source);
    for (const RECT& piece : touched.rects()) copy_piece(*target.surface, piece, unchanged, shift);
  } else {
    for (const RECT& piece : touched.rects()) copy_piece(*target.surface, piece, source, shift);
  }
  target.surface->mark(touched);
}

std::optional<Pixel> one_color(const Surface& surface, const RECT& part) {
  constexpr int kMaxPixels = 4096;
  const RECT all = surface.rect();
  if (!has_area(part) || part.left < 0 || part.top < 0 || part.right > all.right ||
      part.bottom > all.bottom) {
    return std::nullopt;
  }
  const Pixel color = surface.at(part.left, part.top);
  const int width = part.right - part.left;
  int pixels_read = 0;
  for (int y = part.top; y < part.bottom; ++y) {
    const Pixel* row = surface.row_if_stored(y);
    if (row == nullptr) {
      if (surface.uniform_row(y) != color) return std::nullopt;
      continue;
    }
    pixels_read += width;
    if (pixels_read > kMaxPixels) return std::nullopt;
    const Pixel* first = row + part.left;
    if (std::any_of(first, first + width, [color](Pixel pixel) { return pixel != color; })) {
      return std::nullopt;
    }
  }
  return color;
}

Pixel converted(const DeviceContext& target, const DeviceContext& source, Pixel pixel) {
  constexpr Pixel kWhite = 0xFFFFFF;
  if (target.monochrome == source.monochrome) return pixel;
  if (target.monochrome) return (pixel & kWhite) == pixel_of(source.state.back_color) ? kWhite : 0;
  return pixel_of(pixel & kWhite ? target.state.back_color : target.state.text_color);
}

}  // namespace corvane::system
