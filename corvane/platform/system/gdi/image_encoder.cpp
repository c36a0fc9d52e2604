#include "corvane/platform/system/gdi/image_encoder.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <memory>
#include <new>

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

// Premultiplied pixels never exceed their alpha.
Pixel on_white(Pixel pixel) { return pixel + (255 - (pixel >> 24)) * 0x010101u; }

enum class Format { rgb, rgb_on_white, rgba };

void copy_rows(const Surface& surface, const RECT& part, GdkPixbuf* pixbuf, Format format) {
  const bool with_alpha = format == Format::rgba;
  const int channels = with_alpha ? 4 : 3;
  auto stride = static_cast<std::size_t>(gdk_pixbuf_get_rowstride(pixbuf));
  guchar* base = gdk_pixbuf_get_pixels(pixbuf);
  for (int y = part.top; y < part.bottom; ++y) {
    guchar* out = base + static_cast<std::size_t>(y - part.top) * stride;
    for (int x = part.left; x < part.right; ++x, out += channels) {
      const Pixel pixel = surface.at(x, y);
      write_pixel(out, format == Format::rgb_on_white ? on_white(pixel) : pixel, with_alpha);
    }
  }
}

PixbufPointer copy_part(const Surface& surface, const RECT& part, Format format) {
  RECT inside{};
  const RECT whole = surface.rect();
  if (!IntersectRect(&inside, &part, &whole)) return nullptr;
  PixbufPointer pixbuf(gdk_pixbuf_new(GDK_COLORSPACE_RGB,
                                      static_cast<gboolean>(format == Format::rgba), kBitsPerSample,
                                      inside.right - inside.left, inside.bottom - inside.top));
  if (pixbuf != nullptr) copy_rows(surface, inside, pixbuf.get(), format);
  return pixbuf;
}

std::vector<std::uint8_t> file_of(GdkPixbuf* pixbuf, const char* type, const char* option,
                                  const char* value) {
  std::vector<std::uint8_t> bytes;
  const GdkPixbufSaveFunc append = [](const gchar* more, gsize size, GError**, gpointer to) {
    auto& all = *static_cast<std::vector<std::uint8_t>*>(to);
    try {
      all.insert(all.end(), more, more + size);
    } catch (const std::bad_alloc&) {
      return FALSE;
    }
    return TRUE;
  };
  if (pixbuf == nullptr ||
      !gdk_pixbuf_save_to_callback(pixbuf, append, &bytes, type, nullptr, option, value, nullptr)) {
    return {};
  }
  return bytes;
}

}  // namespace

std::vector<std::uint8_t> encode_png(const Surface& surface, const RECT& part, Opacity opacity) {
  const Format format = opacity == Opacity::pixel_alpha ? Format::rgba : Format::rgb;
  return file_of(copy_part(surface, part, format).get(), "png", "compression", "3");
}

std::vector<std::uint8_t> encode_png(const corvane_system::Gdiplus::Image& image,
                                     const RECT& part) {
  if (image.pixels() == nullptr) return {};
  if (image.source() == nullptr) return encode_png(*image.pixels(), part, Opacity::pixel_alpha);
  RECT inside{};
  const RECT whole = image.pixels()->rect();
  if (!IntersectRect(&inside, &part, &whole)) return {};
  const PixbufPointer view(gdk_pixbuf_new_subpixbuf(image.source().get(), inside.left, inside.top,
                                                    inside.right - inside.left,
                                                    inside.bottom - inside.top));
  return file_of(view.get(), "png", "compression", "3");
}

std::vector<std::uint8_t> encode_jpeg(const Surface& surface, const RECT& part) {
  return file_of(copy_part(surface, part, Format::rgb_on_white).get(), "jpeg", "quality", "90");
}

}  // namespace corvane::system
