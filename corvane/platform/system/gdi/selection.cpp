// Which objects a device context draws with.
#include "corvane/platform/system/gdi/gdi_impl.h"

namespace corvane_system {

using namespace corvane::system;

namespace {

// Exchanges one of a context's objects; an object that goes is kept until a doomed one's last
// context is closed, so that the caller may select it again.
template <class Handle>
HGDIOBJ exchange(Gdi::Impl& tables, Handle& selected, HGDIOBJ object) {
  HGDIOBJ previous = selected;
  tables.hold(object);
  tables.release(previous);
  GdiObject* left = tables.objects.find(previous);
  if (left && left->selections == 0) left->doomed = false;
  selected = static_cast<Handle>(object);
  return previous;
}

HGDIOBJ select_bitmap(Gdi::Impl& tables, DeviceContext& dc, HGDIOBJ object) {
  const GdiObject& found = *tables.objects.find(object);
  const bool elsewhere = found.selections > 0 && !found.stock && dc.bitmap != object;
  if (!dc.memory || elsewhere) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  const BitmapObject& bitmap = std::get<BitmapObject>(found.kind);
  dc.surface = bitmap.surface;
  dc.monochrome = bitmap.monochrome;
  return exchange(tables, dc.bitmap, object);
}

}  // namespace

HGDIOBJ SelectObject(HDC dc, HGDIOBJ object) {
  DeviceContext* context = find_dc(dc);
  if (context == nullptr) return nullptr;
  Gdi::Impl& tables = *current_tables();
  if (tables.get<PenObject>(object) != nullptr) return exchange(tables, context->state.pen, object);
  if (tables.get<BrushObject>(object) != nullptr) {
    return exchange(tables, context->state.brush, object);
  }
  if (tables.get<FontObject>(object) != nullptr) {
    return exchange(tables, context->state.font, object);
  }
  if (tables.get<BitmapObject>(object) != nullptr) return select_bitmap(tables, *context, object);
  SetLastError(ERROR_INVALID_HANDLE);
  return nullptr;
}

HGDIOBJ GetCurrentObject(HDC dc, UINT type) {
  const DeviceContext* context = find_dc(dc);
  if (context == nullptr) return nullptr;
  switch (type) {
    case OBJ_PEN:
      return context->state.pen;
    case OBJ_BRUSH:
      return context->state.brush;
    case OBJ_FONT:
      return context->state.font;
    case OBJ_BITMAP:
      return context->bitmap;
    default:
      SetLastError(ERROR_INVALID_PARAMETER);
      return nullptr;
  }
}

}  // namespace corvane_system
