#pragma once
// Copying pixels to another size.
#include "corvane/platform/system/gdi/dc.h"

namespace corvane::system {

// A stretch of pixels along one axis that starts at a pixel and runs forwards, or backwards when
// its length is negative. Surface coordinates.
struct Extent {
  LONG start;
  LONG length;
};

// Copies the source part into the target part by the target's stretch mode; neither length of the
// target may be 0. Pixels that come from outside the source are not written. Clips and marks.
struct Stretch {
  Extent target_x;
  Extent target_y;
  Extent source_x;
  Extent source_y;
};
void stretch_pixels(DeviceContext& target, const DeviceContext& source, const Stretch& stretch);

}  // namespace corvane::system
