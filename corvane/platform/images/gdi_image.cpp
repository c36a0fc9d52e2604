#include "corvane/platform/images/gdi_image.h"

#include <algorithm>
#include <optional>
#include <string>

#include "corvane/platform/framework/platform_session.h"
#include "corvane/platform/images/image_saving.h"

namespace corvane {
namespace {

using Picture = std::shared_ptr<Gdiplus::Image>;

Picture decoded(const wchar_t* path) {
  auto picture = std::make_shared<Gdiplus::Image>(path);
  const bool usable = picture->GetLastStatus() == Gdiplus::Ok && picture->GetWidth() > 0;
  return usable ? picture : nullptr;
}

std::optional<ImageFormat> format_named(const std::wstring& path) {
  const std::size_t dot = path.rfind(L'.');
  if (dot == std::wstring::npos) return std::nullopt;
  std::wstring ending = path.substr(dot);
  std::transform(ending.begin(), ending.end(), ending.begin(), [](wchar_t c) {
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
  });
  if (ending == L".png") return ImageFormat::png;
  if (ending == L".jpg" || ending == L".jpeg") return ImageFormat::jpeg;
  return std::nullopt;
}

}  // namespace

int CGdiImage::Load(const wchar_t* path) {
  open_platform_session();
  image_ = path != nullptr ? decoded(path) : nullptr;
  return image_ ? 1 : 0;
}

int CGdiImage::Save(const wchar_t* path, const RECT& part) const {
  if (image_ == nullptr || path == nullptr) return 0;
  const std::optional<ImageFormat> format = format_named(path);
  const RECT whole{0, 0, GetWidth(), GetHeight()};
  RECT inside{};
  if (!format || !::IntersectRect(&inside, &part, &whole)) return 0;
  return save_image_part(*image_, inside, path, *format) ? 1 : 0;
}

int CGdiImage::GetWidth() const { return image_ ? static_cast<int>(image_->GetWidth()) : 0; }

int CGdiImage::GetHeight() const { return image_ ? static_cast<int>(image_->GetHeight()) : 0; }

}  // namespace corvane
