// Memory contexts and the attributes of device contexts.
#include <utility>

#include "corvane/platform/system/gdi/gdi_impl.h"

namespace corvane_system {

using namespace corvane::system;

namespace {

// Sets one attribute and returns what it was; `failure` for a handle that is no context.
template <class Value>
Value exchange_attribute(HDC dc, Value DcState::*attribute, Value value, Value failure) {
  DeviceContext* context = find_dc(dc);
  return context != nullptr ? std::exchange(context->state.*attribute, value) : failure;
}

template <class Value>
Value attribute_of(HDC dc, Value DcState::*attribute, Value failure) {
  const DeviceContext* context = find_dc(dc);
  return context != nullptr ? context->state.*attribute : failure;
}

// An object that was deleted since the state was saved stays as it is selected now.
template <class Handle>
void reselect(HDC dc, Handle DcState::*object, const DcState& saved) {
  SelectObject(dc, saved.*object);
}

}  // namespace

HDC CreateCompatibleDC(HDC dc) {
  Gdi::Impl* tables = current_tables();
  if (tables == nullptr || (dc != nullptr && find_dc(dc) == nullptr)) return nullptr;
  DeviceContext context;
  context.memory = true;
  context.monochrome = true;
  context.bitmap = tables->default_bitmap;
  context.surface = tables->get<BitmapObject>(context.bitmap)->surface;
  tables->hold(context.bitmap);
  tables->select_defaults(context);
  return tables->contexts.insert_as<HDC>(std::move(context));
}

BOOL DeleteDC(HDC dc) {
  const DeviceContext* context = find_dc(dc);
  if (context == nullptr || !context->memory) return FALSE;
  Gdi::Impl& tables = *current_tables();
  std::optional<DeviceContext> closed = tables.contexts.remove(dc);
  tables.release_all(*closed);
  return TRUE;
}

int SaveDC(HDC dc) {
  DeviceContext* context = find_dc(dc);
  if (context == nullptr) return 0;
  context->saved.push_back(context->state);
  return static_cast<int>(context->saved.size());
}

BOOL RestoreDC(HDC dc, int saved) {
  DeviceContext* context = find_dc(dc);
  if (context == nullptr) return FALSE;
  const int depth = static_cast<int>(context->saved.size());
  const bool known = saved < 0 ? saved >= -depth : saved >= 1 && saved <= depth;
  if (!known) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  const auto level = static_cast<std::size_t>(saved < 0 ? depth + saved : saved - 1);
  DcState state = std::move(context->saved[level]);
  context->saved.resize(level);
  reselect(dc, &DcState::pen, state);
  reselect(dc, &DcState::brush, state);
  reselect(dc, &DcState::font, state);
  state.pen = context->state.pen;
  state.brush = context->state.brush;
  state.font = context->state.font;
  context->state = std::move(state);
  return TRUE;
}

COLORREF SetTextColor(HDC dc, COLORREF color) {
  return exchange_attribute(dc, &DcState::text_color, color & 0xFFFFFF, CLR_INVALID);
}
COLORREF GetTextColor(HDC dc) { return attribute_of(dc, &DcState::text_color, CLR_INVALID); }
COLORREF SetBkColor(HDC dc, COLORREF color) {
  return exchange_attribute(dc, &DcState::back_color, color & 0xFFFFFF, CLR_INVALID);
}
COLORREF GetBkColor(HDC dc) { return attribute_of(dc, &DcState::back_color, CLR_INVALID); }

int SetBkMode(HDC dc, int mode) {
  if (mode != TRANSPARENT && mode != OPAQUE) return 0;
  return exchange_attribute(dc, &DcState::back_mode, mode, 0);
}
int GetBkMode(HDC dc) { return attribute_of(dc, &DcState::back_mode, 0); }

int SetStretchBltMode(HDC dc, int mode) {
  if (mode < BLACKONWHITE || mode > HALFTONE) return 0;
  return exchange_attribute(dc, &DcState::stretch_mode, mode, 0);
}

BOOL SetViewportOrgEx(HDC dc, int x, int y, LPPOINT previous) {
  DeviceContext* context = find_dc(dc);
  if (context == nullptr) return FALSE;
  const POINT before = std::exchange(context->state.viewport, POINT{x, y});
  if (previous != nullptr) *previous = before;
  return TRUE;
}

BOOL GdiFlush() { return TRUE; }

}  // namespace corvane_system
