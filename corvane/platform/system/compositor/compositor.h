#pragma once
// Windows' surfaces -> one frame, by damage. Asks no window for its type: a layer says how its
// pixels are to be taken.
#include <memory>
#include <vector>

#include "corvane/platform/system/gdi/region.h"
#include "corvane/platform/system/gdi/surface.h"

namespace corvane::system {

struct Layer {
  std::shared_ptr<const Surface> surface;  // null: the layer shows nothing
  POINT origin{};                          // frame position of the surface's (0, 0)
  RECT clip{};         // frame rectangle that the layer may touch; outside the surface it does not
  bool keyed = false;  // pixels of exactly `key` (alpha byte ignored) show what is below
  Pixel key = 0;       // 0x00RRGGBB
  std::uint8_t alpha = 255;  // constant alpha over all pixels
  bool pixel_alpha = false;  // premultiplied pixel alpha counts; otherwise pixels are opaque
};

// Redraws the damaged part of the frame from the layers, bottom first, over `background`. Frame
// pixels get an alpha byte of 255; damage outside the frame is ignored. A blended channel is
//   (source * a + below * (255 - a) + 127) / 255
// for constant alpha a. With pixel alpha p, first both the source channel and p are scaled,
//   s = (source * a + 127) / 255,  q = (p * a + 127) / 255,
// and then the channel is min(255, s + (below * (255 - q) + 127) / 255).
void compose(Surface& frame, const Region& damage, const std::vector<Layer>& layers,
             Pixel background);

// The same, one pixel at a time: what compose() must equal.
void compose_reference(Surface& frame, const Region& damage, const std::vector<Layer>& layers,
                       Pixel background);

}  // namespace corvane::system
