#include "corvane/platform/system/gdi/image_decoder.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <cstring>

#include "corvane/platform/system/gdi/pixbuf_file.h"

namespace corvane::system {

namespace {

Pixel premultiplied(Pixel red, Pixel green, Pixel blue, Pixel alpha) {
  const auto scaled = [alpha](Pixel channel) { return (channel * alpha + 127) / 255; };
  return (alpha << 24) | (scaled(red) << 16) | (scaled(green) << 8) | scaled(blue);
}

void convert_opaque_row(const guchar* from, Pixel* to, int width) {
  for (int x = 0; x < width; ++x) {
    to[x] =
        0xFF000000u | (Pixel{from[3 * x]} << 16) | (Pixel{from[3 * x + 1]} << 8) | from[3 * x + 2];
  }
}

void convert_row(const guchar* from, Pixel* to, int width) {
  for (int x = 0; x < width; ++x) {
    to[x] = premultiplied(from[4 * x], from[4 * x + 1], from[4 * x + 2], from[4 * x + 3]);
  }
}

bool is_opaque(const Pixel* row, int width) {
  Pixel all = 0xFF000000;
  for (int x = 0; x < width; ++x) all &= row[x];
  return (all >> 24) == 0xFF;
}

DecodedImage converted(const GdkPixbuf* picture) {
  const int width = gdk_pixbuf_get_width(picture);
  const int height = gdk_pixbuf_get_height(picture);
  const bool has_alpha = gdk_pixbuf_get_n_channels(picture) == 4;
  const guchar* bytes = gdk_pixbuf_read_pixels(picture);
  const auto stride = static_cast<std::ptrdiff_t>(gdk_pixbuf_get_rowstride(picture));
  auto pixels = std::make_shared<Surface>(width, height);
  bool opaque = true;
  for (int y = 0; y < height; ++y) {
    Pixel* to = pixels->row_to_overwrite(y, 0, width);
    if (has_alpha) {
      convert_row(bytes + y * stride, to, width);
    } else {
      convert_opaque_row(bytes + y * stride, to, width);
    }
    opaque = opaque && (!has_alpha || is_opaque(to, width));
  }
  return {std::move(pixels), opaque, nullptr};
}

}  // namespace

std::optional<DecodedImage> decode_image_file(const std::string& path) {
  Pixbuf picture = load_pixbuf(path, [](int, int) { return SIZE{}; }, {});
  if (!picture) return std::nullopt;
  DecodedImage decoded = converted(picture.get());
  if (!decoded.opaque) decoded.source = std::move(picture);
  return decoded;
}

DecodedImage premultiplied_copy(const unsigned char* first_row, int width, int height,
                                std::ptrdiff_t stride) {
  auto pixels = std::make_shared<Surface>(width, height);
  bool opaque = true;
  for (int y = 0; y < height; ++y) {
    Pixel* to = pixels->row_to_overwrite(y, 0, width);
    std::memcpy(to, first_row + y * stride, sizeof(Pixel) * static_cast<std::size_t>(width));
    opaque = opaque && is_opaque(to, width);
    if (opaque) continue;
    for (int x = 0; x < width; ++x) {
      to[x] = premultiplied((to[x] >> 16) & 0xFF, (to[x] >> 8) & 0xFF, to[x] & 0xFF, to[x] >> 24);
    }
  }
  return {std::move(pixels), opaque, nullptr};
}

}  // namespace corvane::system
