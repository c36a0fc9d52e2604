// BitBlt and StretchBlt.
#include "corvane/platform/system/gdi/blits.h"
#include "corvane/platform/system/gdi/gdi_impl.h"
#include "corvane/platform/system/gdi/stretch.h"

namespace corvane_system {

using namespace corvane::system;

namespace {

bool needs_source(DWORD operation) {
  return operation != PATCOPY && operation != BLACKNESS && operation != WHITENESS;
}

// The area of an extent that may run backwards; see ordered().
std::optional<RECT> area_of(const Extent& x, const Extent& y) {
  return ordered({x.start, y.start, offset_by(x.start, x.length), offset_by(y.start, y.length)});
}

void draw(DeviceContext& target, const DeviceContext& source, const Stretch& stretch) {
  const std::optional<RECT> area = area_of(stretch.target_x, stretch.target_y);
  const std::optional<RECT> part = area_of(stretch.source_x, stretch.source_y);
  if (!area || !part) return;
  if (const std::optional<Pixel> color = one_color(*source.surface, *part)) {
    target.fill(*area, converted(target, source, *color));
    return;
  }
  const bool same_size = stretch.target_x.length == stretch.source_x.length &&
                         stretch.target_y.length == stretch.source_y.length;
  if (same_size && target.monochrome == source.monochrome) {
    copy_pixels(target, *area, *source.surface,
                {distance(stretch.target_x.start, stretch.source_x.start),
                 distance(stretch.target_y.start, stretch.source_y.start)});
  } else {
    stretch_pixels(target, source, stretch);
  }
}

}  // namespace

BOOL StretchBlt(HDC target, int x, int y, int width, int height, HDC source, int source_x,
                int source_y, int source_width, int source_height, DWORD operation) {
  if (!needs_source(operation)) return PatBlt(target, x, y, width, height, operation);
  DeviceContext* to = find_dc(target);
  const DeviceContext* from = to != nullptr ? find_dc(source) : nullptr;
  if (from == nullptr) return FALSE;
  if (operation != SRCCOPY) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  const POINT to_start = to->to_surface(x, y);
  const POINT from_start = from->to_surface(source_x, source_y);
  return softly(FALSE, [&] {
    draw(*to, *from,
         {{to_start.x, width},
          {to_start.y, height},
          {from_start.x, source_width},
          {from_start.y, source_height}});
    return TRUE;
  });
}

BOOL BitBlt(HDC target, int x, int y, int width, int height, HDC source, int source_x, int source_y,
            DWORD operation) {
  return StretchBlt(target, x, y, width, height, source, source_x, source_y, width, height,
                    operation);
}

}  // namespace corvane_system
