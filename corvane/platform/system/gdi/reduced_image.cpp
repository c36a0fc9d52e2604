#include "corvane/platform/system/gdi/reduced_image.h"

#include <algorithm>
#include <cmath>

#include "corvane/platform/system/gdi/pixbuf_file.h"

namespace corvane::system {

namespace {

double scale_into(SIZE box, int width, int height) {
  return std::min({1.0, static_cast<double>(box.cx) / width, static_cast<double>(box.cy) / height});
}

SIZE scaled(int width, int height, double scale) {
  const auto side = [scale](int length) {
    return std::max(static_cast<LONG>(std::lround(length * scale)), LONG{1});
  };
  return {side(width), side(height)};
}

// Whether the picture will be turned on its side is known only when it is decoded.
SIZE enough_for_either_way_up(SIZE box, int width, int height) {
  return scaled(width, height,
                std::max(scale_into(box, width, height), scale_into(box, height, width)));
}

Pixbuf fitted(Pixbuf picture, SIZE box) {
  const int width = gdk_pixbuf_get_width(picture.get());
  const int height = gdk_pixbuf_get_height(picture.get());
  const SIZE size = scaled(width, height, scale_into(box, width, height));
  if (size.cx == width && size.cy == height) return picture;
  return Pixbuf(gdk_pixbuf_scale_simple(picture.get(), static_cast<int>(size.cx),
                                        static_cast<int>(size.cy), GDK_INTERP_BILINEAR));
}

ReducedImage pixels_of(const GdkPixbuf* picture) {
  ReducedImage image{gdk_pixbuf_get_width(picture), gdk_pixbuf_get_height(picture), {}};
  const int channels = gdk_pixbuf_get_n_channels(picture);
  const guchar* bytes = gdk_pixbuf_read_pixels(picture);
  image.pixels.reserve(static_cast<std::size_t>(image.width) *
                       static_cast<std::size_t>(image.height));
  for (int y = 0; y < image.height; ++y) {
    const guchar* from = bytes + std::ptrdiff_t{y} * gdk_pixbuf_get_rowstride(picture);
    for (int x = 0; x < image.width; ++x, from += channels) {
      const Pixel alpha = channels == 4 ? from[3] : 0xFF;
      image.pixels.push_back((alpha << 24) | (Pixel{from[0]} << 16) | (Pixel{from[1]} << 8) |
                             from[2]);
    }
  }
  return image;
}

}  // namespace

std::optional<ReducedImage> decode_reduced_image(const std::string& path, SIZE box,
                                                 const std::stop_token& stop) {
  if (box.cx <= 0 || box.cy <= 0) return std::nullopt;
  const ChooseSize choose = [box](int width, int height) {
    return enough_for_either_way_up(box, width, height);
  };
  Pixbuf picture = load_pixbuf(path, choose, stop);
  if (!picture || stop.stop_requested()) return std::nullopt;
  picture = fitted(std::move(picture), box);
  if (!picture) return std::nullopt;
  return pixels_of(picture.get());
}

}  // namespace corvane::system
