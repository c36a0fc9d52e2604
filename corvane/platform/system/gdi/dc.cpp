#include "corvane/platform/system/gdi/dc.h"

#include "corvane/platform/geometry.h"

namespace corvane::system {

LONG offset_by(LONG value, LONG delta) { return clamp_to_summable(std::int64_t{value} + delta); }
LONG distance(LONG from, LONG to) { return clamp_to_summable(std::int64_t{to} - from); }

std::optional<RECT> ordered(const RECT& rect) {
  if (rect.left == rect.right || rect.top == rect.bottom) return std::nullopt;
  RECT result = rect;
  if (result.left > result.right) {
    result = {offset_by(rect.right, 1), rect.top, offset_by(rect.left, 1), rect.bottom};
  }
  if (result.top > result.bottom) {
    result = {result.left, offset_by(rect.bottom, 1), result.right, offset_by(rect.top, 1)};
  }
  return result;
}

POINT DeviceContext::origin() const {
  return {offset_by(base.x, state.viewport.x), offset_by(base.y, state.viewport.y)};
}

RECT DeviceContext::to_surface(const RECT& logical) const {
  const POINT at = origin();
  return {offset_by(logical.left, at.x), offset_by(logical.top, at.y),
          offset_by(logical.right, at.x), offset_by(logical.bottom, at.y)};
}

POINT DeviceContext::to_surface(int x, int y) const {
  const POINT at = origin();
  return {offset_by(x, at.x), offset_by(y, at.y)};
}

Region DeviceContext::clip() const {
  Region clip(surface->rect());
  if (!memory) clip.intersect(system_clip);
  if (state.user_clip) clip.intersect(*state.user_clip);
  return clip;
}

Pixel DeviceContext::pixel(COLORREF color) const {
  if (!monochrome) return pixel_of(color);
  const int brightness = 3 * GetRValue(color) + 6 * GetGValue(color) + GetBValue(color);
  return brightness >= 10 * 128 ? 0xFFFFFF : 0;
}

void DeviceContext::fill(const RECT& area, Pixel color) { Painter(*this).fill(area, color); }

Painter::Painter(DeviceContext& dc)
    : surface_(*dc.surface), clip_(dc.clip()), pieces_(clip_.rects()) {}

Painter::~Painter() {
  clip_.intersect(touched_);
  surface_.mark(clip_);
}

void Painter::fill(const RECT& area, Pixel color) {
  for (const RECT& piece : pieces_) {
    RECT part;
    if (!IntersectRect(&part, &piece, &area)) continue;
    surface_.fill(part, color);
    UnionRect(&touched_, &touched_, &part);
  }
}

}  // namespace corvane::system
