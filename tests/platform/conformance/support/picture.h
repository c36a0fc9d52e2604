#pragma once
// A 32-bit picture in a device context, for UpdateLayeredWindow.
#include <cstdint>

#include "corvane/platform/platform.h"

namespace corvane::conformance {

class Picture {
 public:
  Picture(int width, int height, std::uint32_t pixel) : width_(width), height_(height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    dc_ = CreateCompatibleDC(nullptr);
    void* bits = nullptr;
    bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    pixels_ = static_cast<std::uint32_t*>(bits);
    former_ = SelectObject(dc_, bitmap_);
    fill({0, 0, width, height}, pixel);
  }
  ~Picture() {
    SelectObject(dc_, former_);
    DeleteObject(bitmap_);
    DeleteDC(dc_);
  }
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;

  // Premultiplied, 0xAARRGGBB; the rectangle lies inside the picture.
  void fill(const RECT& rect, std::uint32_t pixel) {
    for (int y = rect.top; pixels_ != nullptr && y < rect.bottom; ++y) {
      for (int x = rect.left; x < rect.right; ++x) pixels_[y * width_ + x] = pixel;
    }
  }
  HDC dc() const { return dc_; }
  SIZE size() const { return {width_, height_}; }

 private:
  int width_;
  int height_;
  HDC dc_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  std::uint32_t* pixels_ = nullptr;
  HGDIOBJ former_ = nullptr;
};

}  // namespace corvane::conformance
