#pragma once
// A width and height in pixels; also the distance between two points.
#include "corvane/platform/geometry.h"
#include "corvane/platform/platform.h"

namespace corvane {

class CSize : public SIZE {
 public:
  constexpr CSize() : SIZE{0, 0} {}
  constexpr CSize(int width, int height) : SIZE{width, height} {}
  constexpr CSize(const SIZE& size) : SIZE(size) {}

  constexpr void SetSize(int width, int height) { *this = CSize(width, height); }
  constexpr CSize& operator+=(const SIZE& other) {
    return *this = CSize(add_coordinates(cx, other.cx), add_coordinates(cy, other.cy));
  }
  constexpr CSize& operator-=(const SIZE& other) {
    return *this = CSize(subtract_coordinates(cx, other.cx), subtract_coordinates(cy, other.cy));
  }
  friend constexpr bool operator==(const CSize& a, const CSize& b) {
    return a.cx == b.cx && a.cy == b.cy;
  }
  friend constexpr CSize operator+(CSize a, const CSize& b) { return a += b; }
  friend constexpr CSize operator-(CSize a, const CSize& b) { return a -= b; }
  constexpr CSize operator-() const { return CSize() - *this; }
};

}  // namespace corvane
