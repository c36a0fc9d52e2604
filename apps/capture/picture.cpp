#include "apps/capture/picture.h"

#include <filesystem>
#include <new>
#include <system_error>

#include "corvane/platform/system/gdi/image_encoder.h"
#include "corvane/platform/system/shell/wide_path.h"

namespace capture {
namespace {

namespace fs = std::filesystem;

}  // namespace

std::unique_ptr<CPicture> CPicture::Open(const std::string& path) {
  std::error_code error;
  const std::string absolute = fs::absolute(path, error).lexically_normal();
  if (error) return nullptr;
  auto image = std::make_unique<Gdiplus::Image>(corvane::system::wide_path(absolute).c_str());
  if (image->GetWidth() == 0 || image->GetHeight() == 0) return nullptr;
  return std::unique_ptr<CPicture>(new CPicture(absolute, std::move(image)));
}

std::string CPicture::name() const { return fs::path(path_).filename(); }

SIZE CPicture::size() const {
  return {static_cast<LONG>(image_->GetWidth()), static_cast<LONG>(image_->GetHeight())};
}

std::vector<std::uint8_t> CPicture::EncodePart(const RECT& part) const {
  if (image_->pixels() == nullptr) return {};
  try {
    return corvane::system::encode_png(*image_->pixels(), part,
                                       corvane::system::Opacity::pixel_alpha);
  } catch (const std::bad_alloc&) {
    return {};
  }
}

}  // namespace capture
