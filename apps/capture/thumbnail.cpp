#include "apps/capture/thumbnail.h"

#include <algorithm>

#ifndef _WIN32
#include "corvane/platform/system/gdi/reduced_image.h"
#include "corvane/platform/system/shell/wide_path.h"
#endif

namespace capture {

#ifdef _WIN32

Thumbnail decode_thumbnail(const std::wstring& path, SIZE box, const std::stop_token& stop) {
  Gdiplus::Image whole(path.c_str());
  auto width = static_cast<double>(whole.GetWidth());
  auto height = static_cast<double>(whole.GetHeight());
  if (width < 1 || height < 1 || stop.stop_requested()) return nullptr;
  double scale = std::min({1.0, box.cx / width, box.cy / height});
  auto side = [scale](double length) {
    return std::max(static_cast<UINT>(length * scale + 0.5), 1u);
  };
  return Thumbnail(whole.GetThumbnailImage(side(width), side(height), nullptr, nullptr));
}

#else

Thumbnail decode_thumbnail(const std::wstring& path, SIZE box, const std::stop_token& stop) {
  const std::string file = corvane::system::file_system_path(path);
  auto reduced = corvane::system::decode_reduced_image(file, box, stop);
  if (!reduced) return nullptr;
  using namespace Gdiplus;
  return std::make_shared<Bitmap>(reduced->width, reduced->height, 4 * reduced->width,
                                  PixelFormat32bppARGB,
                                  reinterpret_cast<BYTE*>(reduced->pixels.data()));
}

#endif

}  // namespace capture
