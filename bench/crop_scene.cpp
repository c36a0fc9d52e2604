#include "bench/crop_scene.h"

namespace corvane::bench {

using system::Layer;
using system::Pixel;
using system::Surface;

namespace {

constexpr Pixel white = 0xFFFFFFFF;
constexpr Pixel green = 0xFF00C800;
constexpr int line_width = 3;

std::shared_ptr<Surface> colorful_picture(SIZE size) {
  auto picture = std::make_shared<Surface>(size.cx, size.cy);
  for (int y = 0; y < size.cy; ++y) {
    Pixel* const row = picture->row(y);
    for (int x = 0; x < size.cx; ++x) {
      row[x] = 0xFF000000 | (static_cast<Pixel>(x * 7 + y * 3) * 2654435761u >> 8);
    }
  }
  return picture;
}

// Half of the width and half of the height, in the middle.
std::shared_ptr<Surface> dimming_with_hole(SIZE size) {
  auto dimming = std::make_shared<Surface>(size.cx, size.cy, 0xFF000000);
  const RECT hole{size.cx / 4, size.cy / 4, size.cx * 3 / 4, size.cy * 3 / 4};
  dimming->fill({hole.left - line_width, hole.top - line_width, hole.right + line_width,
                 hole.bottom + line_width},
                green);
  dimming->fill(hole, white);
  return dimming;
}

}  // namespace

CropScene::CropScene(SIZE screen)
    : size(screen), picture(colorful_picture(screen)), dimming(dimming_with_hole(screen)) {
  const RECT all{0, 0, size.cx, size.cy};
  Layer bottom{picture, {}, all};
  Layer mouse_catcher{std::make_shared<Surface>(size.cx, size.cy, 0xFFF0F0F0), {}, all};
  mouse_catcher.alpha = 1;
  Layer top{dimming, {}, all};
  top.keyed = true;
  top.key = white & 0x00FFFFFF;
  top.alpha = 120;
  layers = {bottom, mouse_catcher, top};
}

}  // namespace corvane::bench
