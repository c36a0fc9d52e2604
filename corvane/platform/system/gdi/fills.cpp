// Rectangles, single pixels and patterns of one colour.
#include "corvane/platform/system/gdi/gdi_impl.h"
#include "corvane/platform/system/gdi/lines.h"

namespace corvane_system {

using namespace corvane::system;

namespace {

void frame(DeviceContext& dc, const RECT& area, Pixel color) {
  dc.fill({area.left, area.top, area.right, area.top + 1}, color);
  dc.fill({area.left, area.bottom - 1, area.right, area.bottom}, color);
  dc.fill({area.left, area.top, area.left + 1, area.bottom}, color);
  dc.fill({area.right - 1, area.top, area.right, area.bottom}, color);
}

// Calls draw(context, area, pixel) for a rectangle in logical coordinates; not for an empty one
// or the null brush. 0 for a bad handle or rectangle.
template <class Draw>
int draw_with_brush(HDC dc, const RECT* rect, HBRUSH brush, Draw draw) {
  DeviceContext* context = find_dc(dc);
  std::optional<COLORREF> color;
  if (context == nullptr || rect == nullptr) return 0;
  if (!current_tables()->brush_color(brush, &color)) return 0;
  return softly(0, [&] {
    const std::optional<RECT> area = ordered(context->to_surface(*rect));
    if (area && color) draw(*context, *area, context->pixel(*color));
    return 1;
  });
}

// The outline runs through the pixels (left, top), (right - 1, bottom - 1).
void outline(DeviceContext& dc, const PenObject& pen, const RECT& area) {
  const POINT corners[] = {{area.left, area.top},
                           {area.right - 1, area.top},
                           {area.right - 1, area.bottom - 1},
                           {area.left, area.bottom - 1}};
  for (int side = 0; side < 4; ++side) draw_line(dc, pen, corners[side], corners[(side + 1) % 4]);
  if (pen.width <= 1 && pen.style != PS_NULL && area.right - area.left == 1 &&
      area.bottom - area.top == 1) {
    dc.fill(area, dc.pixel(pen.color));
  }
}

// The colour of a pattern operation; nothing when it leaves the pixels alone.
bool pattern_color(const DeviceContext& dc, DWORD operation, std::optional<Pixel>* color) {
  if (operation == BLACKNESS) {
    *color = 0;
    return true;
  }
  if (operation == WHITENESS) {
    *color = 0xFFFFFF;
    return true;
  }
  std::optional<COLORREF> brush;
  if (operation != PATCOPY || !current_tables()->brush_color(dc.state.brush, &brush)) return false;
  if (brush) *color = dc.pixel(*brush);
  return true;
}

}  // namespace

int FillRect(HDC dc, const RECT* rect, HBRUSH brush) {
  return draw_with_brush(
      dc, rect, brush,
      [](DeviceContext& context, const RECT& area, Pixel color) { context.fill(area, color); });
}

int FrameRect(HDC dc, const RECT* rect, HBRUSH brush) {
  return draw_with_brush(dc, rect, brush, frame);
}

BOOL Rectangle(HDC dc, int left, int top, int right, int bottom) {
  DeviceContext* context = find_dc(dc);
  if (context == nullptr) return FALSE;
  const PenObject* pen = current_tables()->get<PenObject>(context->state.pen);
  std::optional<COLORREF> color;
  if (pen == nullptr || !current_tables()->brush_color(context->state.brush, &color)) return FALSE;
  return softly(FALSE, [&] {
    std::optional<RECT> area = ordered(context->to_surface({left, top, right, bottom}));
    if (!area) return TRUE;
    if (pen->style == PS_NULL) {
      --area->right;
      --area->bottom;
    }
    if (color) context->fill(*area, context->pixel(*color));
    outline(*context, *pen, *area);
    return TRUE;
  });
}

BOOL PatBlt(HDC dc, int x, int y, int width, int height, DWORD operation) {
  DeviceContext* context = find_dc(dc);
  if (context == nullptr) return FALSE;
  std::optional<Pixel> color;
  if (!pattern_color(*context, operation, &color)) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  return softly(FALSE, [&] {
    const POINT at = context->to_surface(x, y);
    const std::optional<RECT> area =
        ordered({at.x, at.y, offset_by(at.x, width), offset_by(at.y, height)});
    if (area && color) context->fill(*area, *color);
    return TRUE;
  });
}

COLORREF GetPixel(HDC dc, int x, int y) {
  const DeviceContext* context = find_dc(dc);
  if (context == nullptr) return CLR_INVALID;
  const POINT at = context->to_surface(x, y);
  return context->clip().contains(at) ? color_of(context->surface->at(at.x, at.y)) : CLR_INVALID;
}

COLORREF SetPixel(HDC dc, int x, int y, COLORREF color) {
  DeviceContext* context = find_dc(dc);
  if (context == nullptr) return CLR_INVALID;
  const POINT at = context->to_surface(x, y);
  if (!context->clip().contains(at)) return CLR_INVALID;
  return softly(CLR_INVALID, [&] {
    const Pixel pixel = context->pixel(color);
    context->fill({at.x, at.y, at.x + 1, at.y + 1}, pixel);
    return color_of(pixel);
  });
}

}  // namespace corvane_system
