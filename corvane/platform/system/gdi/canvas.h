#pragma once
// Drawing on a part of a surface with Cairo, for what is not made of whole pixels.
#include <cairo.h>

#include "corvane/platform/system/gdi/region.h"
#include "corvane/platform/system/gdi/surface.h"

namespace corvane::system {

// A Cairo context in surface coordinates, limited to a region. The pixels are the surface's own;
// they are flushed, and the region is marked, when the canvas goes. Nothing else may touch the
// surface meanwhile. Colours written are real premultiplied ones, alpha included.
class Canvas {
 public:
  Canvas(Surface& surface, Region area);
  ~Canvas();
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  // Null when there is nothing to draw on.
  cairo_t* cairo() const { return cairo_; }

 private:
  void clip_to_area();

  Surface& surface_;
  Region area_;
  cairo_surface_t* image_ = nullptr;
  cairo_t* cairo_ = nullptr;
};

// A Cairo surface that reads a part of a surface, which must outlive it unchanged and hold all its
// rows (see Surface::pixels). Null when there is nothing to read. The caller destroys it.
cairo_surface_t* image_of(const Surface& surface, const RECT& part);

}  // namespace corvane::system
