#pragma once
// Arithmetic on 32-bit coordinates and rectangles, for every room: it depends on no other. Any
// coordinate may come from outside, so sums are made in 64 bits and brought back. A `Rect` is
// whatever has the platform's four edges; `right` and `bottom` lie outside it.
#include <algorithm>
#include <cstdint>
#include <limits>

namespace corvane {

// The coordinate nearest to `value`, of all or of those from `low` to `high`.
constexpr int clamp_coordinate(std::int64_t value, int low = (std::numeric_limits<int>::min)(),
                               int high = (std::numeric_limits<int>::max)()) {
  return static_cast<int>(std::clamp<std::int64_t>(value, low, high));
}

// Coordinates as near to 0 as this can be added and subtracted once without overflow.
inline constexpr int kMaxSummable = (1 << 30) - 1;

constexpr int clamp_to_summable(std::int64_t value) {
  return clamp_coordinate(value, -kMaxSummable, kMaxSummable);
}

// Wraps round where the platform's own rectangles do.
constexpr int wrap_coordinate(std::int64_t value) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}
constexpr int add_coordinates(std::int64_t a, std::int64_t b) { return wrap_coordinate(a + b); }
constexpr int subtract_coordinates(std::int64_t a, std::int64_t b) {
  return wrap_coordinate(a - b);
}
// Half of the sum, truncated toward zero; exact even where the sum has no 32-bit value.
constexpr int middle_coordinate(std::int64_t a, std::int64_t b) {
  return wrap_coordinate((a + b) / 2);
}

template <class Rect>
constexpr std::int64_t width_of(const Rect& rect) {
  return std::int64_t{rect.right} - std::int64_t{rect.left};
}

template <class Rect>
constexpr std::int64_t height_of(const Rect& rect) {
  return std::int64_t{rect.bottom} - std::int64_t{rect.top};
}

template <class Rect>
constexpr bool has_area(const Rect& rect) {
  return rect.right > rect.left && rect.bottom > rect.top;
}

template <class Rect>
constexpr bool contains(const Rect& rect, std::int64_t x, std::int64_t y) {
  return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
}

// What lies in both; it has no area when nothing does.
template <class Rect>
constexpr Rect intersection(const Rect& a, const Rect& b) {
  return {(std::max)(a.left, b.left), (std::max)(a.top, b.top), (std::min)(a.right, b.right),
          (std::min)(a.bottom, b.bottom)};
}

// The smallest rectangle around both.
template <class Rect>
constexpr Rect bounding_rect(const Rect& a, const Rect& b) {
  return {(std::min)(a.left, b.left), (std::min)(a.top, b.top), (std::max)(a.right, b.right),
          (std::max)(a.bottom, b.bottom)};
}

}  // namespace corvane
