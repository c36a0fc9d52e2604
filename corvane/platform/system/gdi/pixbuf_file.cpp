#include "corvane/platform/system/gdi/pixbuf_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <vector>

#include "corvane/platform/system/gdi/image_completeness.h"
#include "corvane/platform/system/gdi/image_decoder.h"

namespace corvane::system {

namespace {

constexpr std::size_t kChunk = 64 * 1024;
constexpr off_t kMaxFileSize = off_t{1} << 30;  // bytes

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
struct UnreferenceLoader {
  void operator()(GdkPixbufLoader* loader) const { g_object_unref(loader); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// Not for a folder, a pipe or a device, which would never end.
File open_regular_file(const std::string& path) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (descriptor < 0) return nullptr;
  struct stat status {};
  const bool usable =
      fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size <= kMaxFileSize;
  File file(usable ? fdopen(descriptor, "rb") : nullptr);
  if (!file) close(descriptor);
  return file;
}

bool is_acceptable(int width, int height) {
  return width > 0 && height > 0 && width <= kMaxImageSide && height <= kMaxImageSide &&
         static_cast<long>(width) * height <= kMaxImagePixels;
}

// Runs the loader over a file. A size of 0 makes it give up before it allocates.
class Loader {
 public:
  Loader(const ChooseSize& choose_size, const std::stop_token& stop)
      : loader_(gdk_pixbuf_loader_new()), choose_size_(choose_size), stop_(stop) {
    g_signal_connect(loader_.get(), "size-prepared", G_CALLBACK(&Loader::size_prepared), this);
  }

  Pixbuf load(std::FILE* file) {
    bool good = feed(file) && !refused_;
    good = (gdk_pixbuf_loader_close(loader_.get(), nullptr) != 0) && good && !refused_;
    GdkPixbuf* picture = good ? gdk_pixbuf_loader_get_pixbuf(loader_.get()) : nullptr;
    if (picture == nullptr) return nullptr;
    return Pixbuf(gdk_pixbuf_apply_embedded_orientation(picture));
  }

 private:
  static void size_prepared(GdkPixbufLoader* loader, int width, int height, gpointer self) {
    static_cast<Loader*>(self)->prepare(loader, width, height);
  }

  void prepare(GdkPixbufLoader* loader, int width, int height) {
    refused_ = !is_acceptable(width, height);
    const SIZE size = refused_ ? SIZE{} : choose_size_(width, height);
    if (refused_ || (size.cx > 0 && size.cy > 0)) {
      gdk_pixbuf_loader_set_size(loader, static_cast<int>(size.cx), static_cast<int>(size.cy));
    }
  }

  bool feed(std::FILE* file) {
    std::vector<guchar> chunk(kChunk);
    while (!refused_ && !stop_.stop_requested()) {
      const std::size_t read = std::fread(chunk.data(), 1, chunk.size(), file);
      if (read == 0) return std::ferror(file) == 0;
      if (!gdk_pixbuf_loader_write(loader_.get(), chunk.data(), read, nullptr)) return false;
    }
    return false;
  }

  std::unique_ptr<GdkPixbufLoader, UnreferenceLoader> loader_;
  const ChooseSize& choose_size_;
  const std::stop_token& stop_;
  bool refused_ = false;
};

}  // namespace

Pixbuf load_pixbuf(const std::string& path, const ChooseSize& choose_size,
                   const std::stop_token& stop) {
  const File file = open_regular_file(path);
  if (!file) return nullptr;
  Pixbuf picture = Loader(choose_size, stop).load(file.get());
  if (!picture) return nullptr;
  if (!is_acceptable(gdk_pixbuf_get_width(picture.get()), gdk_pixbuf_get_height(picture.get()))) {
    return nullptr;
  }
  return is_complete_image(file.get()) ? std::move(picture) : nullptr;
}

}  // namespace corvane::system
