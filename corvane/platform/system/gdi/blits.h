#pragma once
// Copying pixels from one surface to another.
#include "corvane/platform/system/gdi/dc.h"

namespace corvane::system {

// Copies all 32 bits into `area` of the context's surface; the pixel at p comes from p + shift of
// the source. Clipped to the context and the source; may overlap; marks. Surface coordinates.
void copy_pixels(DeviceContext& target, const RECT& area, const Surface& source, POINT shift);

// The one colour of a part of a surface, when a short look finds it: at most 4096 stored pixels
// are read. Nothing for a part that reaches outside the surface.
std::optional<Pixel> one_color(const Surface& surface, const RECT& part);

// A pixel of `source` as `target` stores it, when one of them is monochrome and the other is not.
Pixel converted(const DeviceContext& target, const DeviceContext& source, Pixel pixel);

}  // namespace corvane::system
