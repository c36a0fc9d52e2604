#include "corvane/platform/images/gdi_image.h"

namespace corvane {
namespace {

using Picture = std::shared_ptr<Gdiplus::Image>;

Picture decoded(const wchar_t* path) {
  auto picture = std::make_shared<Gdiplus::Image>(path);
  const bool usable = picture->GetLastStatus() == Gdiplus::Ok && picture->GetWidth() > 0;
  return usable ? picture : nullptr;
}

}  // namespace

int CGdiImage::Load(const wchar_t* path) {
  image_ = path != nullptr ? decoded(path) : nullptr;
  return image_ ? 1 : 0;
}

int CGdiImage::GetWidth() const { return image_ ? static_cast<int>(image_->GetWidth()) : 0; }

int CGdiImage::GetHeight() const { return image_ ? static_cast<int>(image_->GetHeight()) : 0; }

}  // namespace corvane
