#pragma once
// Coordinates may be anything; sums of them are made in 64 bits and brought back to the nearest
// coordinate.
#include <cstdint>
#include <limits>

#include "corvane/platform/platform.h"

namespace corvane {

constexpr LONG saturated(std::int64_t value) {
  constexpr std::int64_t lowest = std::numeric_limits<LONG>::min();
  constexpr std::int64_t highest = std::numeric_limits<LONG>::max();
  if (value < lowest) return static_cast<LONG>(lowest);
  if (value > highest) return static_cast<LONG>(highest);
  return static_cast<LONG>(value);
}

constexpr std::int64_t width_of(const RECT& rect) {
  return std::int64_t{rect.right} - std::int64_t{rect.left};
}

constexpr std::int64_t height_of(const RECT& rect) {
  return std::int64_t{rect.bottom} - std::int64_t{rect.top};
}

constexpr bool has_area(const RECT& rect) {
  return rect.right > rect.left && rect.bottom > rect.top;
}

}  // namespace corvane
