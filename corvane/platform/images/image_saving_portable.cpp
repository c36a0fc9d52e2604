#include <new>
#include <vector>

#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/images/image_saving.h"
#include "corvane/platform/system/gdi/image_encoder.h"
#include "corvane/platform/system/shell/new_file.h"

namespace corvane {
namespace {

std::vector<std::uint8_t> encoded(const Gdiplus::Image& image, const RECT& part,
                                  ImageFormat format) {
  try {
    return format == ImageFormat::jpeg ? system::encode_jpeg(*image.pixels(), part)
                                       : system::encode_png(image, part);
  } catch (const std::bad_alloc&) {
    return {};
  }
}

}  // namespace

std::vector<std::uint8_t> encode_image_part(Gdiplus::Image& image, const RECT& part) {
  return encoded(image, part, ImageFormat::png);
}

bool save_image_part(Gdiplus::Image& image, const RECT& part, const wchar_t* path,
                     ImageFormat format) {
  const std::filesystem::path file_path = native_path(path);
  if (file_path.empty() || image.pixels() == nullptr) return false;
  const std::vector<std::uint8_t> bytes = encoded(image, part, format);
  if (bytes.empty()) return false;
  const std::filesystem::path folder = file_path.parent_path();
  system::NewFile file(folder.empty() ? "." : folder.string());
  return file.write(bytes.data(), bytes.size()) && file.replace(file_path.filename().string());
}

}  // namespace corvane
