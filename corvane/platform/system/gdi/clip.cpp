// The part of a surface that a device context may draw on.
#include <algorithm>

#include "corvane/platform/system/gdi/gdi_impl.h"

namespace corvane_system {

using namespace corvane::system;

namespace {

int kind_of(const Region& region) {
  const int pieces = region.count();
  return pieces == 0 ? NULLREGION : pieces == 1 ? SIMPLEREGION : COMPLEXREGION;
}

// The sides may be given in any order.
RECT upright(int left, int top, int right, int bottom) {
  return {std::min(left, right), std::min(top, bottom), std::max(left, right),
          std::max(top, bottom)};
}

}  // namespace

int IntersectClipRect(HDC dc, int left, int top, int right, int bottom) {
  DeviceContext* context = find_dc(dc);
  if (context == nullptr) return 0;
  const RECT area = context->to_surface(upright(left, top, right, bottom));
  std::optional<Region>& clip = context->state.user_clip;
  if (clip) {
    clip->intersect(area);
  } else {
    clip = Region(area);
  }
  return kind_of(context->clip());
}

int ExcludeClipRect(HDC dc, int left, int top, int right, int bottom) {
  DeviceContext* context = find_dc(dc);
  if (context == nullptr) return 0;
  std::optional<Region>& clip = context->state.user_clip;
  if (!clip) clip = context->clip();
  clip->subtract(context->to_surface(upright(left, top, right, bottom)));
  return kind_of(context->clip());
}

int GetClipBox(HDC dc, LPRECT rect) {
  const DeviceContext* context = find_dc(dc);
  if (context == nullptr || rect == nullptr) return 0;
  const Region clip = context->clip();
  *rect = clip.bounds();
  const POINT origin = context->origin();
  if (!clip.empty()) {
    *rect = {distance(origin.x, rect->left), distance(origin.y, rect->top),
             distance(origin.x, rect->right), distance(origin.y, rect->bottom)};
  }
  return kind_of(clip);
}

BOOL RectVisible(HDC dc, const RECT* rect) {
  const DeviceContext* context = find_dc(dc);
  if (context == nullptr || rect == nullptr) return FALSE;
  const RECT area = upright(rect->left, rect->top, rect->right, rect->bottom);
  return context->clip().intersects(context->to_surface(area)) ? TRUE : FALSE;
}

}  // namespace corvane_system
