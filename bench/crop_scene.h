#pragma once
// What the screen holds while a picture is cropped: the picture, a layer that takes the mouse and
// is all but invisible, and a dimming layer with a hole of its key colour framed by green lines.
#include <vector>

#include "corvane/platform/system/compositor/compositor.h"

namespace corvane::bench {

struct CropScene {
  explicit CropScene(SIZE size);
  SIZE size;
  std::shared_ptr<system::Surface> picture;
  std::shared_ptr<system::Surface> dimming;
  std::vector<system::Layer> layers;
};

}  // namespace corvane::bench
