#include "corvane/layers/crop/picture_mapping.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "corvane/platform/geometry.h"

namespace corvane {
namespace {

struct Span {
  std::int64_t first = 0;
  std::int64_t last = 0;  // excluded
};

// Both products stay below 2^63: a length is below 2^32, a picture's size below 2^31.
Span pixels_along(std::int64_t size, Span shown, Span framed) {
  const std::int64_t length = shown.last - shown.first;
  const std::int64_t first = std::max(framed.first, shown.first) - shown.first;
  const std::int64_t last = std::min(framed.last, shown.last) - shown.first;
  if (size <= 0 || length <= 0 || first >= last) return {};
  const std::int64_t whole = last * size / length;
  const bool part_of_another = last * size % length != 0;
  return {first * size / length, part_of_another ? whole + 1 : whole};
}

std::int64_t scaled(std::int64_t value, std::int64_t numerator, std::int64_t denominator) {
  return std::max<std::int64_t>(1, (value * numerator + denominator / 2) / denominator);
}

// In floating point: the product of two lengths may have 64 bits.
LONG moved_along(LONG value, Span from, Span to) {
  const auto length = static_cast<double>(from.last - from.first);
  const auto length_now = static_cast<double>(to.last - to.first);
  const double place = static_cast<double>(value - from.first) / length * length_now;
  constexpr double kFarOutside = 1e12;  // clamped again with its origin
  return clamp_coordinate(to.first + std::llround(std::clamp(place, -kFarOutside, kFarOutside)));
}

}  // namespace

RECT picture_pixels(SIZE picture, const RECT& shown, const RECT& framed) {
  const Span across =
      pixels_along(picture.cx, {shown.left, shown.right}, {framed.left, framed.right});
  const Span down =
      pixels_along(picture.cy, {shown.top, shown.bottom}, {framed.top, framed.bottom});
  if (across.first >= across.last || down.first >= down.last) return {0, 0, 0, 0};
  return {clamp_coordinate(across.first), clamp_coordinate(down.first),
          clamp_coordinate(across.last), clamp_coordinate(down.last)};
}

RECT framed_at(const RECT& framed, const RECT& shown, const RECT& shown_now) {
  if (!has_area(shown) || !has_area(shown_now)) return framed;
  const Span across{shown.left, shown.right}, across_now{shown_now.left, shown_now.right};
  const Span down{shown.top, shown.bottom}, down_now{shown_now.top, shown_now.bottom};
  return {moved_along(framed.left, across, across_now), moved_along(framed.top, down, down_now),
          moved_along(framed.right, across, across_now),
          moved_along(framed.bottom, down, down_now)};
}

RECT fit_picture(SIZE picture, const RECT& area) {
  if (picture.cx <= 0 || picture.cy <= 0 || !has_area(area)) return {0, 0, 0, 0};
  const std::int64_t area_width = width_of(area);
  const std::int64_t area_height = height_of(area);
  std::int64_t width = picture.cx;
  std::int64_t height = picture.cy;
  if (width > area_width || height > area_height) {
    const bool width_decides = area_width * height <= area_height * width;
    const std::int64_t fitting_width =
        width_decides ? area_width : scaled(width, area_height, height);
    height = width_decides ? scaled(height, area_width, width) : area_height;
    width = fitting_width;
  }
  const std::int64_t left = area.left + (area_width - width) / 2;
  const std::int64_t top = area.top + (area_height - height) / 2;
  return {clamp_coordinate(left), clamp_coordinate(top), clamp_coordinate(left + width),
          clamp_coordinate(top + height)};
}

}  // namespace corvane
