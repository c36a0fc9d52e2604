#include <algorithm>

#include "corvane/platform/system/types.h"

namespace corvane_system {

namespace {

// Both wrap round like the platform's 32-bit arithmetic.
LONG sum(LONG value, LONG delta) {
  return static_cast<LONG>(static_cast<ULONG>(value) + static_cast<ULONG>(delta));
}
LONG difference(LONG value, LONG delta) {
  return static_cast<LONG>(static_cast<ULONG>(value) - static_cast<ULONG>(delta));
}

bool is_empty(const RECT& rect) { return rect.left >= rect.right || rect.top >= rect.bottom; }

}  // namespace

BOOL SetRect(LPRECT rect, int left, int top, int right, int bottom) {
  if (!rect) return FALSE;
  *rect = {left, top, right, bottom};
  return TRUE;
}

BOOL SetRectEmpty(LPRECT rect) { return SetRect(rect, 0, 0, 0, 0); }

BOOL CopyRect(LPRECT target, const RECT* source) {
  if (!target || !source) return FALSE;
  *target = *source;
  return TRUE;
}

BOOL IsRectEmpty(const RECT* rect) { return !rect || is_empty(*rect); }

BOOL EqualRect(const RECT* first, const RECT* second) {
  if (!first || !second) return FALSE;
  return first->left == second->left && first->top == second->top &&
         first->right == second->right && first->bottom == second->bottom;
}

BOOL PtInRect(const RECT* rect, POINT point) {
  return rect && point.x >= rect->left && point.x < rect->right && point.y >= rect->top &&
         point.y < rect->bottom;
}

BOOL InflateRect(LPRECT rect, int dx, int dy) {
  if (!rect) return FALSE;
  *rect = {difference(rect->left, dx), difference(rect->top, dy), sum(rect->right, dx),
           sum(rect->bottom, dy)};
  return TRUE;
}

BOOL OffsetRect(LPRECT rect, int dx, int dy) {
  if (!rect) return FALSE;
  *rect = {sum(rect->left, dx), sum(rect->top, dy), sum(rect->right, dx), sum(rect->bottom, dy)};
  return TRUE;
}

BOOL IntersectRect(LPRECT target, const RECT* first, const RECT* second) {
  if (!target || !first || !second) return FALSE;
  const RECT common{std::max(first->left, second->left), std::max(first->top, second->top),
                    std::min(first->right, second->right), std::min(first->bottom, second->bottom)};
  const bool nothing = is_empty(*first) || is_empty(*second) || is_empty(common);
  *target = nothing ? RECT{0, 0, 0, 0} : common;
  return !nothing;
}

BOOL UnionRect(LPRECT target, const RECT* first, const RECT* second) {
  if (!target || !first || !second) return FALSE;
  if (is_empty(*first))
    *target = is_empty(*second) ? RECT{0, 0, 0, 0} : *second;
  else if (is_empty(*second))
    *target = *first;
  else
    *target = {std::min(first->left, second->left), std::min(first->top, second->top),
               std::max(first->right, second->right), std::max(first->bottom, second->bottom)};
  return !is_empty(*target);
}

}  // namespace corvane_system
