#pragma once
// A picture or a part of it onto a device context.
#include <cairo.h>

#include "corvane/platform/system/gdi/dc.h"
#include "corvane/platform/system/gdi/gdiplus.h"

namespace corvane::system {

struct ImagePlacement {
  RECT part;    // of the picture, inside it, not empty
  double x, y;  // where the part goes, in the coordinates that `matrix` maps to the surface;
  double width, height;  // a negative size mirrors
  cairo_matrix_t matrix;
  bool nearest = false;  // exact blocks instead of smooth pixels
};

// Source-over; clips and marks. A part that keeps its size is copied, a smaller one is averaged
// once and kept in the picture's cache, anything else is drawn bilinearly; so is a smaller one that
// reaches beyond the surface, from a copy of the picture halved once or more.
void paint_image(DeviceContext& dc, const corvane_system::Gdiplus::Image& image,
                 const ImagePlacement& placement);

}  // namespace corvane::system
