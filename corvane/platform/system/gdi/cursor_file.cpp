#include "corvane/platform/system/gdi/cursor_file.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include "corvane/platform/system/gdi/animated_cursor.h"
#include "corvane/platform/system/gdi/pixbuf_file.h"

namespace corvane::system {
namespace {

constexpr std::uintmax_t kLargestFile = 16 << 20;  // bytes
constexpr int kLargestSide = 512;                  // what desktops take for a cursor
constexpr std::size_t kMostPixels = 16 << 20;      // of all pictures of a file

struct UnreferenceLoader {
  void operator()(GdkPixbufLoader* loader) const { g_object_unref(loader); }
};
using Loader = std::unique_ptr<GdkPixbufLoader, UnreferenceLoader>;

std::string file_content(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return {};
  if (std::filesystem::file_size(path, error) > kLargestFile || error) return {};
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The directory of a .cur file: a head of 6 bytes, then 16 for each picture.
constexpr std::size_t kHead = 6;
constexpr std::size_t kEntry = 16;
constexpr std::uint32_t kCursorKind = 2;
constexpr std::uint32_t kIconKind = 1;

struct Entry {
  std::string_view bytes;
  LONG width() const { return side(0); }
  LONG height() const { return side(1); }
  LONG side(std::size_t at) const {
    const auto value = static_cast<LONG>(little_endian(bytes, at, 1));
    return value != 0 ? value : 256;
  }
  std::uint32_t size() const { return little_endian(bytes, 8, 4); }
  std::uint32_t offset() const { return little_endian(bytes, 12, 4); }
};

std::optional<Entry> nearest_entry(std::string_view bytes, LONG side) {
  const std::uint32_t kind = little_endian(bytes, 2, 2);
  const std::size_t count = little_endian(bytes, 4, 2);
  if (little_endian(bytes, 0, 2) != 0 || (kind != kCursorKind && kind != kIconKind)) return {};
  if (bytes.size() < kHead + count * kEntry) return std::nullopt;
  std::optional<Entry> best;
  for (std::size_t at = 0; at < count; ++at) {
    const Entry entry{bytes.substr(kHead + at * kEntry, kEntry)};
    if (entry.offset() > bytes.size() || entry.size() > bytes.size() - entry.offset()) continue;
    const auto distance = [side](const Entry& each) { return std::abs(each.width() - side); };
    // Of one size the later ones have more colours.
    if (!best || distance(entry) <= distance(*best)) best = entry;
  }
  return best;
}

// The same picture as the only one of an icon file, which the library reads; as a cursor it would
// refuse hotspots that it does not like.
std::string icon_file_of(std::string_view bytes, const Entry& entry) {
  std::string file("\0\0\1\0\1\0", kHead);
  file += entry.bytes.substr(0, 4);
  file.append("\1\0\40\0", 4);
  file += entry.bytes.substr(8, 4);
  file.append("\26\0\0\0", 4);
  file += bytes.substr(entry.offset(), entry.size());
  return file;
}

Pixbuf decode(const std::string& icon) {
  const Loader loader(gdk_pixbuf_loader_new_with_type("ico", nullptr));
  if (loader == nullptr) return nullptr;
  const auto refuse_large = +[](GdkPixbufLoader* self, int width, int height, gpointer) {
    if (width > kLargestSide || height > kLargestSide) gdk_pixbuf_loader_set_size(self, 0, 0);
  };
  g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(refuse_large), nullptr);
  bool good = gdk_pixbuf_loader_write(loader.get(), reinterpret_cast<const guchar*>(icon.data()),
                                      icon.size(), nullptr) != FALSE;
  good = gdk_pixbuf_loader_close(loader.get(), nullptr) != FALSE && good;
  GdkPixbuf* const picture = good ? gdk_pixbuf_loader_get_pixbuf(loader.get()) : nullptr;
  return picture != nullptr ? Pixbuf(gdk_pixbuf_add_alpha(picture, FALSE, 0, 0, 0)) : nullptr;
}

std::vector<Pixel> pixels_of(const GdkPixbuf* picture, SIZE size) {
  const guchar* const bytes = gdk_pixbuf_read_pixels(picture);
  const int stride = gdk_pixbuf_get_rowstride(picture);
  std::vector<Pixel> pixels;
  for (int y = 0; y < size.cy; ++y) {
    for (int x = 0; x < size.cx; ++x) {
      const guchar* const from = bytes + static_cast<std::ptrdiff_t>(y) * stride + 4 * x;
      pixels.push_back(Pixel{from[3]} << 24 | Pixel{from[0]} << 16 | Pixel{from[1]} << 8 | from[2]);
    }
  }
  return pixels;
}

std::shared_ptr<const CursorImage> read_image(std::string_view bytes, LONG side) {
  const auto entry = nearest_entry(bytes, side);
  if (!entry) return nullptr;
  const Pixbuf picture = decode(icon_file_of(bytes, *entry));
  if (picture == nullptr) return nullptr;
  const SIZE size{gdk_pixbuf_get_width(picture.get()), gdk_pixbuf_get_height(picture.get())};
  if (size.cx > kLargestSide || size.cy > kLargestSide) return nullptr;
  POINT hotspot{size.cx / 2, size.cy / 2};  // of an icon
  if (little_endian(bytes, 2, 2) == kCursorKind) {
    hotspot = {static_cast<LONG>(little_endian(entry->bytes, 4, 2)),
               static_cast<LONG>(little_endian(entry->bytes, 6, 2))};
  }
  hotspot = {std::min(hotspot.x, size.cx - 1), std::min(hotspot.y, size.cy - 1)};
  return std::make_shared<CursorImage>(CursorImage{size, hotspot, pixels_of(picture.get(), size)});
}

}  // namespace

std::optional<std::vector<CursorStep>> read_cursor_file(const std::string& path, LONG side) {
  const std::string bytes = file_content(path);
  AnimatedCursor parts{{{bytes, 1}}};
  if (is_animated_cursor(bytes)) {
    const auto animated = read_animated_cursor(bytes);
    if (!animated) return std::nullopt;
    parts = *animated;
  }
  std::map<const char*, std::shared_ptr<const CursorImage>> known;
  std::vector<CursorStep> steps;
  std::size_t pixels = 0;
  for (const AnimatedCursor::Step& step : parts.steps) {
    auto& image = known[step.icon.data()];
    if (image == nullptr) {
      image = read_image(step.icon, side);
      if (image == nullptr) return std::nullopt;
      pixels += image->pixels.size();
    }
    if (pixels > kMostPixels) return std::nullopt;
    steps.push_back({image, step.duration});
  }
  return steps;
}

}  // namespace corvane::system
