#pragma once
// Arithmetic on 32-bit coordinates that wraps round instead of overflowing, as the platform's does.
#include <cstdint>

#include "corvane/platform/platform.h"

namespace corvane {

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

}  // namespace corvane
