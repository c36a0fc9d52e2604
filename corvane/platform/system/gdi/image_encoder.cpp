#include "corvane/platform/system/gdi/image_encoder.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <memory>

namespace corvane::system {
namespace {

constexpr int kBitsPerSample = 8;

struct Unref {
  void operator()(GdkPixbuf* pixbuf) const { g_object_unref(pixbuf); }
};
using PixbufPointer = std::unique_ptr<GdkPixbuf, Unref>;

guchar straight(Pixel premultiplied, Pixel alpha) {
  if (alpha == 0 || alpha == 255) return static_cast<guchar>(premultiplied);
  const Pixel value = (premultiplied * 255 + alpha / 2) / alpha;
  return static_cast<guchar>(value > 255 ? 255 : value);
}

void write_pixel(guchar* out, Pixel pixel, bool with_alpha) {
  const Pixel alpha = with_alpha ? pixel >> 24 : 255;
  out[0] = straight((pixel >> 16) & 0xFF, alpha);
  out[1] = straight((pixel >> 8) & 0xFF, alpha);
  out[2] = straight(pixel & 0xFF, alpha);
  if (with_alpha) out[3] = static_cast<guchar>(alpha);
}

void copy_rows(const Surface& surface, const RECT& part, GdkPixbuf* pixbuf, bool with_alpha) {
  const int channels = with_alpha ? 4 : 3;
  auto stride = static_cast<std::size_t>(gdk_pixbuf_get_rowstride(pixbuf));
  guchar* base = gdk_pixbuf_get_pixels(pixbuf);
  for (int y = part.top; y < part.bottom; ++y) {
    guchar* out = base + static_cast<std::size_t>(y - part.top) * stride;
    for (int x = part.left; x < part.right; ++x, out += channels) {
      write_pixel(out, surface.at(x, y), with_alpha);
    }
  }
}

}  // namespace

std::vector<std::uint8_t> encode_png(const Surface& surface, const RECT& part, Opacity opacity) {
  RECT inside{};
  const RECT whole = surface.rect();
  if (!IntersectRect(&inside, &part, &whole)) return {};
  const bool with_alpha = opacity == Opacity::pixel_alpha;
  const PixbufPointer pixbuf(gdk_pixbuf_new(GDK_COLORSPACE_RGB, static_cast<gboolean>(with_alpha),
                                            kBitsPerSample, inside.right - inside.left,
                                            inside.bottom - inside.top));
  if (pixbuf == nullptr) return {};
  copy_rows(surface, inside, pixbuf.get(), with_alpha);
  gchar* bytes = nullptr;
  gsize size = 0;
  if (!gdk_pixbuf_save_to_buffer(pixbuf.get(), &bytes, &size, "png", nullptr, "compression", "3",
                                 nullptr)) {
    return {};
  }
  std::vector<std::uint8_t> result(bytes, bytes + size);
  g_free(bytes);
  return result;
}

}  // namespace corvane::system
