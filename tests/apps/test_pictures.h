#pragma once
#include <cstdint>
#include <fstream>
#include <string>

#include "corvane/platform/system/gdi/image_encoder.h"

namespace capture {

// Every pixel of the test picture tells where it is from; no channel is near black or white.
inline corvane::system::Pixel TestPixel(int x, int y) {
  auto red = static_cast<std::uint32_t>(40 + x % 180);
  auto green = static_cast<std::uint32_t>(40 + y % 180);
  auto blue = static_cast<std::uint32_t>(60 + x / 180 * 20 + y / 180 * 5);
  return 0xFF000000u | (red << 16) | (green << 8) | blue;
}

inline void WritePng(const std::string& path, const corvane::system::Surface& surface) {
  auto png = corvane::system::encode_png(surface, surface.rect());
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(png.data()), static_cast<std::streamsize>(png.size()));
}

inline void WriteTestPicture(const std::string& path, int width, int height) {
  corvane::system::Surface surface(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) surface.row(y)[x] = TestPixel(x, y);
  }
  WritePng(path, surface);
}

}  // namespace capture
