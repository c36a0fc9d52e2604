#pragma once
// A point: pixels, in the coordinates that the function it is passed to names.
#include "corvane/platform/framework/size.h"

namespace corvane {

class CPoint : public POINT {
 public:
  constexpr CPoint() : POINT{0, 0} {}
  constexpr CPoint(int px, int py) : POINT{px, py} {}
  constexpr CPoint(const POINT& point) : POINT(point) {}

  constexpr void SetPoint(int px, int py) { *this = CPoint(px, py); }
  constexpr void Offset(int dx, int dy) {
    x = add_coordinates(x, dx);
    y = add_coordinates(y, dy);
  }
  constexpr CPoint& operator+=(const SIZE& by) {
    Offset(by.cx, by.cy);
    return *this;
  }
  constexpr CPoint& operator-=(const SIZE& by) {
    x = subtract_coordinates(x, by.cx);
    y = subtract_coordinates(y, by.cy);
    return *this;
  }
  friend constexpr bool operator==(const CPoint& a, const CPoint& b) {
    return a.x == b.x && a.y == b.y;
  }
  friend constexpr CPoint operator+(CPoint point, const SIZE& by) { return point += by; }
  friend constexpr CPoint operator-(CPoint point, const SIZE& by) { return point -= by; }
  friend constexpr CSize operator-(const CPoint& a, const CPoint& b) {
    return {subtract_coordinates(a.x, b.x), subtract_coordinates(a.y, b.y)};
  }
};

}  // namespace corvane
