#include "corvane/platform/system/gdi/canvas.h"

#include <utility>

namespace corvane::system {

namespace {

unsigned char* bytes_of(const Pixel* pixels) {
  return reinterpret_cast<unsigned char*>(const_cast<Pixel*>(pixels));
}

// Bytes from one row to the next; negative in bottom-up surfaces.
int byte_stride(const Surface& surface, int top) {
  const Pixel* first = surface.row_if_stored(top);
  const Pixel* second = surface.row_if_stored(top + 1);
  if (second == nullptr) return surface.stride() * static_cast<int>(sizeof(Pixel));
  return static_cast<int>((second - first) * static_cast<std::ptrdiff_t>(sizeof(Pixel)));
}

}  // namespace

Canvas::Canvas(Surface& surface, Region area) : surface_(surface), area_(std::move(area)) {
  area_.intersect(surface.rect());
  if (area_.empty()) return;
  const RECT window = area_.bounds();
  for (int y = window.top; y < window.bottom; ++y) surface.row(y);
  image_ = cairo_image_surface_create_for_data(
      bytes_of(surface.row(window.top) + window.left), CAIRO_FORMAT_ARGB32,
      window.right - window.left, window.bottom - window.top, byte_stride(surface, window.top));
  cairo_ = cairo_create(image_);
  cairo_translate(cairo_, -window.left, -window.top);
  clip_to_area();
}

void Canvas::clip_to_area() {
  const int pieces = area_.count();
  if (pieces == 1) return;
  for (int index = 0; index < pieces; ++index) {
    const RECT piece = area_.rect(index);
    cairo_rectangle(cairo_, piece.left, piece.top, piece.right - piece.left,
                    piece.bottom - piece.top);
  }
  cairo_clip(cairo_);
}

Canvas::~Canvas() {
  if (cairo_ == nullptr) return;
  cairo_destroy(cairo_);
  cairo_surface_flush(image_);
  cairo_surface_destroy(image_);
  surface_.mark(area_);
}

cairo_surface_t* image_of(const Surface& surface, const RECT& part) {
  const Pixel* first = surface.row_if_stored(part.top);
  if (first == nullptr || part.left >= part.right || part.top >= part.bottom) return nullptr;
  return cairo_image_surface_create_for_data(bytes_of(first + part.left), CAIRO_FORMAT_ARGB32,
                                             part.right - part.left, part.bottom - part.top,
                                             byte_stride(surface, part.top));
}

}  // namespace corvane::system
