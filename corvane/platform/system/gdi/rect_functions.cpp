#include "corvane/platform/geometry.h"
#include "corvane/platform/system/types.h"

namespace corvane_system {

using corvane::add_coordinates;
using corvane::has_area;
using corvane::subtract_coordinates;

BOOL SetRect(LPRECT rect, int left, int top, int right, int bottom) {
  if (rect == nullptr) return FALSE;
  *rect = {left, top, right, bottom};
  return TRUE;
}

BOOL SetRectEmpty(LPRECT rect) { return SetRect(rect, 0, 0, 0, 0); }

BOOL CopyRect(LPRECT target, const RECT* source) {
  if (target == nullptr || source == nullptr) return FALSE;
  *target = *source;
  return TRUE;
}

BOOL IsRectEmpty(const RECT* rect) { return rect == nullptr || !has_area(*rect) ? TRUE : FALSE; }

BOOL EqualRect(const RECT* first, const RECT* second) {
  if (first == nullptr || second == nullptr) return FALSE;
  return first->left == second->left && first->top == second->top &&
                 first->right == second->right && first->bottom == second->bottom
             ? TRUE
             : FALSE;
}

BOOL PtInRect(const RECT* rect, POINT point) {
  return rect != nullptr && corvane::contains(*rect, point.x, point.y) ? TRUE : FALSE;
}

BOOL InflateRect(LPRECT rect, int dx, int dy) {
  if (rect == nullptr) return FALSE;
  *rect = {subtract_coordinates(rect->left, dx), subtract_coordinates(rect->top, dy),
           add_coordinates(rect->right, dx), add_coordinates(rect->bottom, dy)};
  return TRUE;
}

BOOL OffsetRect(LPRECT rect, int dx, int dy) {
  if (rect == nullptr) return FALSE;
  *rect = {add_coordinates(rect->left, dx), add_coordinates(rect->top, dy),
           add_coordinates(rect->right, dx), add_coordinates(rect->bottom, dy)};
  return TRUE;
}

BOOL IntersectRect(LPRECT target, const RECT* first, const RECT* second) {
  if (target == nullptr || first == nullptr || second == nullptr) return FALSE;
  const RECT common = corvane::intersection(*first, *second);
  const bool nothing = !has_area(*first) || !has_area(*second) || !has_area(common);
  *target = nothing ? RECT{0, 0, 0, 0} : common;
  return !nothing ? TRUE : FALSE;
}

BOOL UnionRect(LPRECT target, const RECT* first, const RECT* second) {
  if (target == nullptr || first == nullptr || second == nullptr) return FALSE;
  if (!has_area(*first)) {
    *target = has_area(*second) ? *second : RECT{0, 0, 0, 0};
  } else if (!has_area(*second)) {
    *target = *first;
  } else {
    *target = corvane::bounding_rect(*first, *second);
  }
  return has_area(*target) ? TRUE : FALSE;
}

}  // namespace corvane_system
