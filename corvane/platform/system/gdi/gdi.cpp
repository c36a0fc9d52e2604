#include "corvane/platform/system/gdi/gdi.h"

#include <cstdint>
#include <utility>

#include "corvane/platform/system/gdi/gdi_impl.h"
#include "corvane/platform/system/gdi/text_engine.h"

namespace corvane::system {

namespace {
thread_local Gdi* current_gdi = nullptr;
}

Gdi::Impl::Impl() { add_stock_objects(*this); }
Gdi::Impl::~Impl() = default;

HGDIOBJ Gdi::Impl::add(GdiObject object) { return objects.insert_as<HGDIOBJ>(std::move(object)); }

bool Gdi::Impl::brush_color(HBRUSH brush, std::optional<COLORREF>* color) {
  const auto value = reinterpret_cast<std::uintptr_t>(brush);
  if (value >= 1 && value <= kSystemColors) {
    *color = system_color(static_cast<int>(value) - 1);
    return true;
  }
  const BrushObject* object = get<BrushObject>(brush);
  if (object != nullptr) *color = object->color;
  return object != nullptr;
}

void Gdi::Impl::hold(const void* object) {
  if (GdiObject* found = objects.find(object)) ++found->selections;
}

void Gdi::Impl::release(const void* object) {
  if (GdiObject* found = objects.find(object)) --found->selections;
}

void Gdi::Impl::bury(const void* object) {
  const GdiObject* found = objects.find(object);
  if (found != nullptr && found->doomed && found->selections == 0) objects.remove(object);
}

void Gdi::Impl::select_defaults(DeviceContext& dc) {
  dc.state.pen = static_cast<HPEN>(stock[BLACK_PEN]);
  dc.state.brush = static_cast<HBRUSH>(stock[WHITE_BRUSH]);
  dc.state.font = static_cast<HFONT>(stock[SYSTEM_FONT]);
  for (const void* object : {stock[BLACK_PEN], stock[WHITE_BRUSH], stock[SYSTEM_FONT]}) {
    hold(object);
  }
}

void Gdi::Impl::release_all(DeviceContext& dc) {
  for (const void* object :
       {static_cast<const void*>(dc.state.pen), static_cast<const void*>(dc.state.brush),
        static_cast<const void*>(dc.state.font), static_cast<const void*>(dc.bitmap)}) {
    release(object);
    bury(object);
  }
}

TextEngine& Gdi::Impl::text_engine() {
  if (!text) text = std::make_unique<TextEngine>();
  return *text;
}

Gdi::Impl* current_tables() {
  if (current_gdi != nullptr) return &current_gdi->impl();
  SetLastError(ERROR_INVALID_HANDLE);
  return nullptr;
}

DeviceContext* find_dc(HDC dc) {
  Gdi::Impl* tables = current_tables();
  DeviceContext* context = tables != nullptr ? tables->contexts.find(dc) : nullptr;
  if (context == nullptr) SetLastError(ERROR_INVALID_HANDLE);
  return context;
}

Gdi::Gdi() : impl_(std::make_unique<Impl>()) {}

Gdi::~Gdi() {
  if (current_gdi == this) current_gdi = nullptr;
}

Gdi* Gdi::current() { return current_gdi; }

Gdi* Gdi::set_current(Gdi* gdi) { return std::exchange(current_gdi, gdi); }

HDC Gdi::open_dc(std::shared_ptr<Surface> surface, POINT origin, const Region& clip) {
  if (!surface) return nullptr;
  DeviceContext dc;
  dc.surface = std::move(surface);
  dc.base = origin;
  dc.system_clip = clip;
  impl_->select_defaults(dc);
  return impl_->contexts.insert_as<HDC>(std::move(dc));
}

bool Gdi::close_dc(HDC dc) {
  const DeviceContext* found = impl_->contexts.find(dc);
  if (found == nullptr || found->memory) return false;
  std::optional<DeviceContext> closed = impl_->contexts.remove(dc);
  impl_->release_all(*closed);
  return true;
}

std::shared_ptr<Surface> Gdi::dc_surface(HDC dc, POINT* origin) {
  const DeviceContext* found = impl_->contexts.find(dc);
  if (found == nullptr) return nullptr;
  if (origin != nullptr) *origin = found->origin();
  return found->surface;
}

bool Gdi::fill(Surface& surface, const Region& region, HBRUSH brush) {
  std::optional<COLORREF> color;
  if (!impl_->brush_color(brush, &color) || !color) return false;
  return softly(false, [&] {
    for (const RECT& piece : region.rects()) surface.fill(piece, pixel_of(*color));
    surface.mark(region);
    return true;
  });
}

std::shared_ptr<const Surface> Gdi::icon(HICON icon) {
  const IconObject* const found = impl_->get<IconObject>(icon);
  return found != nullptr ? found->pixels : nullptr;
}

int Gdi::live_objects() const {
  int live = impl_->contexts.size();
  impl_->objects.for_each(
      [&live](std::uint64_t, const GdiObject& object) { live += object.stock ? 0 : 1; });
  return live;
}

}  // namespace corvane::system
