#pragma once
// A rectangle: left and top are inside, right and bottom outside; pixels. Every operation takes any
// coordinates; a rectangle is empty when its width or height is not positive.
#include "corvane/platform/framework/point.h"

namespace corvane {

class CRect : public RECT {
 public:
  constexpr CRect() : RECT{0, 0, 0, 0} {}
  constexpr CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
  constexpr CRect(const RECT& rect) : RECT(rect) {}
  constexpr CRect(LPCRECT rect)
      : RECT(rect != nullptr ? *rect : RECT{0, 0, 0, 0}) {}  // null: empty
  constexpr CRect(const POINT& top_left, const SIZE& size)
      : RECT{top_left.x, top_left.y, add_coordinates(top_left.x, size.cx),
             add_coordinates(top_left.y, size.cy)} {}
  constexpr CRect(const POINT& top_left, const POINT& bottom_right)
      : RECT{top_left.x, top_left.y, bottom_right.x, bottom_right.y} {}

  constexpr int Width() const { return subtract_coordinates(right, left); }
  constexpr int Height() const { return subtract_coordinates(bottom, top); }
  constexpr CSize Size() const { return {Width(), Height()}; }
  constexpr CPoint TopLeft() const { return {static_cast<int>(left), static_cast<int>(top)}; }
  constexpr CPoint BottomRight() const {
    return {static_cast<int>(right), static_cast<int>(bottom)};
  }
  // The halves are truncated toward zero.
  constexpr CPoint CenterPoint() const {
    return {middle_coordinate(left, right), middle_coordinate(top, bottom)};
  }

  constexpr bool IsRectEmpty() const { return !has_area(*this); }
  constexpr bool IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
  constexpr bool PtInRect(const POINT& point) const { return contains(*this, point.x, point.y); }
  constexpr bool EqualRect(const RECT& other) const {
    return left == other.left && top == other.top && right == other.right && bottom == other.bottom;
  }

  constexpr void SetRect(int l, int t, int r, int b) { *this = CRect(l, t, r, b); }
  constexpr void SetRectEmpty() { *this = CRect(); }
  constexpr void CopyRect(LPCRECT other) { *this = CRect(other); }
  constexpr void OffsetRect(int dx, int dy) {
    left = add_coordinates(left, dx);
    top = add_coordinates(top, dy);
    right = add_coordinates(right, dx);
    bottom = add_coordinates(bottom, dy);
  }
  constexpr void OffsetRect(const SIZE& by) { OffsetRect(by.cx, by.cy); }
  constexpr void OffsetRect(const POINT& by) { OffsetRect(by.x, by.y); }
  constexpr void MoveToXY(int l, int t) { *this = CRect(CPoint(l, t), Size()); }
  // Moves every edge outwards; a negative amount moves it inwards.
  constexpr void InflateRect(int l, int t, int r, int b) {
    left = subtract_coordinates(left, l);
    top = subtract_coordinates(top, t);
    right = add_coordinates(right, r);
    bottom = add_coordinates(bottom, b);
  }
  constexpr void InflateRect(int dx, int dy) { InflateRect(dx, dy, dx, dy); }
  constexpr void InflateRect(const SIZE& by) { InflateRect(by.cx, by.cy); }
  constexpr void DeflateRect(int l, int t, int r, int b) {
    left = add_coordinates(left, l);
    top = add_coordinates(top, t);
    right = subtract_coordinates(right, r);
    bottom = subtract_coordinates(bottom, b);
  }
  constexpr void DeflateRect(int dx, int dy) { DeflateRect(dx, dy, dx, dy); }
  constexpr void DeflateRect(const SIZE& by) { DeflateRect(by.cx, by.cy); }
  // Swaps edges that are the wrong way round.
  constexpr void NormalizeRect();

  // Become the common part, or the smallest rectangle around both (an empty one does not count);
  // false, and (0, 0, 0, 0), when that is empty. The arguments may be this rectangle itself.
  constexpr bool IntersectRect(LPCRECT first, LPCRECT second);
  constexpr bool UnionRect(LPCRECT first, LPCRECT second);

  constexpr operator LPRECT() { return this; }
  constexpr operator LPCRECT() const { return this; }

  constexpr CRect& operator+=(const POINT& by) {
    OffsetRect(by);
    return *this;
  }
  constexpr CRect& operator+=(const SIZE& by) {
    OffsetRect(by);
    return *this;
  }
  constexpr CRect& operator-=(const POINT& by) {
    *this = CRect(TopLeft() - CSize(by.x, by.y), BottomRight() - CSize(by.x, by.y));
    return *this;
  }
  constexpr CRect& operator&=(const RECT& other) {
    IntersectRect(this, &other);
    return *this;
  }
  constexpr CRect& operator|=(const RECT& other) {
    UnionRect(this, &other);
    return *this;
  }
  friend constexpr bool operator==(const CRect& a, const CRect& b) { return a.EqualRect(b); }
  friend constexpr bool operator==(const CRect& a, const RECT& b) { return a.EqualRect(b); }
  friend constexpr CRect operator+(CRect rect, const POINT& by) { return rect += by; }
  friend constexpr CRect operator-(CRect rect, const POINT& by) { return rect -= by; }
  friend constexpr CRect operator&(CRect a, const RECT& b) { return a &= b; }
  friend constexpr CRect operator|(CRect a, const RECT& b) { return a |= b; }
};

constexpr void CRect::NormalizeRect() {
  const RECT old = *this;
  if (old.left > old.right) {
    left = old.right;
    right = old.left;
  }
  if (old.top > old.bottom) {
    top = old.bottom;
    bottom = old.top;
  }
}

constexpr bool CRect::IntersectRect(LPCRECT first, LPCRECT second) {
  const CRect a(first), b(second);
  const CRect common = intersection(a, b);
  const bool empty = a.IsRectEmpty() || b.IsRectEmpty() || common.IsRectEmpty();
  *this = empty ? CRect() : common;
  return !empty;
}

constexpr bool CRect::UnionRect(LPCRECT first, LPCRECT second) {
  const CRect a(first), b(second);
  if (a.IsRectEmpty() && b.IsRectEmpty()) {
    SetRectEmpty();
    return false;
  }
  if (a.IsRectEmpty() || b.IsRectEmpty()) {
    *this = a.IsRectEmpty() ? b : a;
    return true;
  }
  *this = bounding_rect(a, b);
  return true;
}

}  // namespace corvane
