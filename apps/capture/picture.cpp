#include "apps/capture/picture.h"

#include <filesystem>
#include <system_error>

#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/images/image_saving.h"

namespace capture {
namespace {

namespace fs = std::filesystem;

}  // namespace

std::unique_ptr<CPicture> CPicture::Open(const std::string& path) {
  std::error_code error;
  const std::string absolute = fs::absolute(path, error).lexically_normal().string();
  if (error) return nullptr;
  auto image = std::make_unique<Gdiplus::Image>(corvane::wide_path_of(absolute).c_str());
  if (image->GetWidth() == 0 || image->GetHeight() == 0) return nullptr;
  return std::unique_ptr<CPicture>(new CPicture(absolute, std::move(image)));
}

std::string CPicture::name() const { return fs::path(path_).filename().string(); }

SIZE CPicture::size() const {
  return {static_cast<LONG>(image_->GetWidth()), static_cast<LONG>(image_->GetHeight())};
}

std::vector<std::uint8_t> CPicture::EncodePart(const RECT& part) const {
  return corvane::encode_image_part(*image_, part);
}

}  // namespace capture
