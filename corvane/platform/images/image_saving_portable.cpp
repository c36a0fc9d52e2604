#include <fstream>
#include <new>
#include <system_error>
#include <vector>

#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/images/image_saving.h"
#include "corvane/platform/system/gdi/image_encoder.h"

namespace corvane {
namespace {

std::vector<std::uint8_t> encoded(const system::Surface& pixels, const RECT& part,
                                  ImageFormat format) {
  try {
    return format == ImageFormat::jpeg
               ? system::encode_jpeg(pixels, part)
               : system::encode_png(pixels, part, system::Opacity::pixel_alpha);
  } catch (const std::bad_alloc&) {
    return {};
  }
}

}  // namespace

bool save_image_part(Gdiplus::Image& image, const RECT& part, const wchar_t* path,
                     ImageFormat format) {
  const std::filesystem::path file_path = native_path(path);
  if (file_path.empty() || image.pixels() == nullptr) return false;
  const std::vector<std::uint8_t> bytes = encoded(*image.pixels(), part, format);
  if (bytes.empty()) return false;
  std::ofstream file(file_path, std::ios::binary | std::ios::trunc);
  if (!file) return false;
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (file) return true;
  std::error_code error;
  std::filesystem::remove(file_path, error);
  return false;
}

}  // namespace corvane
