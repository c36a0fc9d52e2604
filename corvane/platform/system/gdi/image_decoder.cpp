#include "corvane/platform/system/gdi/image_decoder.h"

#include <fcntl.h>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <vector>

#include "corvane/platform/system/gdi/image_completeness.h"

namespace corvane::system {

namespace {

constexpr std::size_t kChunk = 64 * 1024;
constexpr off_t kLargestFile = off_t{1} << 30;  // bytes

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
struct Unreference {
  void operator()(void* object) const { g_object_unref(object); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;
using Pixbuf = std::unique_ptr<GdkPixbuf, Unreference>;

// Not for a folder, a pipe or a device, which would never end.
File open_regular_file(const std::string& path) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (descriptor < 0) return nullptr;
  struct stat status {};
  const bool usable =
      fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size <= kLargestFile;
  File file(usable ? fdopen(descriptor, "rb") : nullptr);
  if (!file) close(descriptor);
  return file;
}

bool is_acceptable(int width, int height) {
  return width > 0 && height > 0 && width <= kLargestImageSide && height <= kLargestImageSide &&
         static_cast<long>(width) * height <= kLargestImagePixels;
}

// Runs the loader over a file. A size of 0 makes it give up before it allocates.
class Loader {
 public:
  Loader() : loader_(gdk_pixbuf_loader_new()) {
    g_signal_connect(loader_.get(), "size-prepared", G_CALLBACK(&Loader::size_prepared), this);
  }

  Pixbuf load(std::FILE* file) {
    bool good = feed(file) && !refused_;
    good = gdk_pixbuf_loader_close(loader_.get(), nullptr) && good && !refused_;
    GdkPixbuf* picture = good ? gdk_pixbuf_loader_get_pixbuf(loader_.get()) : nullptr;
    if (!picture) return nullptr;
    return Pixbuf(gdk_pixbuf_apply_embedded_orientation(picture));
  }

 private:
  static void size_prepared(GdkPixbufLoader* loader, int width, int height, gpointer self) {
    if (is_acceptable(width, height)) return;
    static_cast<Loader*>(self)->refused_ = true;
    gdk_pixbuf_loader_set_size(loader, 0, 0);
  }

  bool feed(std::FILE* file) {
    std::vector<guchar> chunk(kChunk);
    while (!refused_) {
      const std::size_t read = std::fread(chunk.data(), 1, chunk.size(), file);
      if (read == 0) return !std::ferror(file);
      if (!gdk_pixbuf_loader_write(loader_.get(), chunk.data(), read, nullptr)) return false;
    }
    return false;
  }

  std::unique_ptr<GdkPixbufLoader, Unreference> loader_;
  bool refused_ = false;
};

Pixel premultiplied(Pixel red, Pixel green, Pixel blue, Pixel alpha) {
  const auto scaled = [alpha](Pixel channel) { return (channel * alpha + 127) / 255; };
  return (alpha << 24) | (scaled(red) << 16) | (scaled(green) << 8) | scaled(blue);
}

void convert_opaque_row(const guchar* from, Pixel* to, int width) {
  for (int x = 0; x < width; ++x)
    to[x] =
        0xFF000000u | (Pixel{from[3 * x]} << 16) | (Pixel{from[3 * x + 1]} << 8) | from[3 * x + 2];
}

void convert_row(const guchar* from, Pixel* to, int width) {
  for (int x = 0; x < width; ++x)
    to[x] = premultiplied(from[4 * x], from[4 * x + 1], from[4 * x + 2], from[4 * x + 3]);
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
    if (has_alpha)
      convert_row(bytes + y * stride, to, width);
    else
      convert_opaque_row(bytes + y * stride, to, width);
    opaque = opaque && (!has_alpha || is_opaque(to, width));
  }
  return {std::move(pixels), opaque};
}

}  // namespace

std::optional<DecodedImage> decode_image_file(const std::string& path) {
  const File file = open_regular_file(path);
  if (!file) return std::nullopt;
  const Pixbuf picture = Loader().load(file.get());
  if (!picture) return std::nullopt;
  if (!is_acceptable(gdk_pixbuf_get_width(picture.get()), gdk_pixbuf_get_height(picture.get())))
    return std::nullopt;
  if (!is_complete_image(file.get())) return std::nullopt;
  return converted(picture.get());
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
    for (int x = 0; x < width; ++x)
      to[x] = premultiplied((to[x] >> 16) & 0xFF, (to[x] >> 8) & 0xFF, to[x] & 0xFF, to[x] >> 24);
  }
  return {std::move(pixels), opaque};
}

}  // namespace corvane::system
