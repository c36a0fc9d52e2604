#include <cstddef>
#include <cstdint>
#include <utility>

#include "corvane/platform/system/gdi/gdi_impl.h"
#include "corvane/platform/system/gdi/gdiplus.h"
#include "corvane/platform/system/gdi/image_decoder.h"
#include "corvane/platform/system/gdi/image_scaling.h"
#include "corvane/platform/system/shell/wide_path.h"

namespace corvane_system::Gdiplus {

using namespace corvane::system;

Image::Image(const WCHAR* path, BOOL) {
  status_ = InvalidParameter;
  if (path == nullptr) return;
  softly(false, [&] {
    const std::string file = file_system_path(path);
    std::optional<DecodedImage> decoded;
    if (!file.empty()) decoded = decode_image_file(file);
    if (decoded) take_pixels(std::move(*decoded));
    return true;
  });
}

Image::~Image() = default;

void Image::take_pixels(DecodedImage decoded) {
  cache_ = std::make_shared<ImageCache>(decoded.opaque);
  pixels_ = std::move(decoded.pixels);
  source_ = std::move(decoded.source);
  if (is_large_picture(*pixels_)) cache_->halved(pixels_, 1, 1);
  status_ = Ok;
}

Image* Image::FromFile(const WCHAR* path, BOOL embedded_color_management) {
  return new Image(path, embedded_color_management);
}

Image* Image::Clone() const {
  Image* clone = new Image;
  clone->pixels_ = pixels_;
  clone->source_ = source_;
  clone->cache_ = cache_;
  clone->status_ = pixels_ ? Ok : InvalidParameter;
  return clone;
}

UINT Image::GetWidth() const { return pixels_ ? static_cast<UINT>(pixels_->width()) : 0; }
UINT Image::GetHeight() const { return pixels_ ? static_cast<UINT>(pixels_->height()) : 0; }
Status Image::GetLastStatus() const { return std::exchange(status_, Ok); }

Status Bitmap::GetHICON(HICON* icon) {
  Gdi::Impl* tables = pixels_ != nullptr && icon != nullptr ? current_tables() : nullptr;
  if (tables == nullptr) return status_ = InvalidParameter;
  *icon = tables->objects.insert_as<HICON>({.kind = IconObject{pixels_}});
  return status_ = Ok;
}

Bitmap::Bitmap(INT width, INT height, INT stride, DWORD format, BYTE* scan0) {
  status_ = InvalidParameter;
  const bool good_size = width > 0 && height > 0 && width <= kMaxImageSide &&
                         height <= kMaxImageSide &&
                         static_cast<long>(width) * height <= kMaxImagePixels;
  const std::int64_t bytes_per_row = stride < 0 ? -std::int64_t{stride} : stride;
  if (!good_size || format != PixelFormat32bppARGB) return;
  if (scan0 != nullptr && bytes_per_row < std::int64_t{width} * 4) return;
  softly(false, [&] {
    if (scan0) {
      take_pixels(premultiplied_copy(scan0, width, height, stride));
    } else {
      auto blank = std::make_shared<Surface>(width, height);
      blank->pixels();
      take_pixels({std::move(blank), false, nullptr});
    }
    return true;
  });
}

}  // namespace corvane_system::Gdiplus
