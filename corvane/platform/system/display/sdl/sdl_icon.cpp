#include "corvane/platform/system/display/sdl/sdl_icon.h"

#include <SDL.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace corvane::system {
namespace {

constexpr int kBitsPerPixel = 32;

// As a desktop wants it: the colours not multiplied by the opacity.
Pixel straight(Pixel pixel) {
  const Pixel alpha = pixel >> 24;
  if (alpha == 0) return 0;
  const auto channel = [&](int shift) {
    return std::min((pixel >> shift & 0xFF) * 255 / alpha, Pixel{255}) << shift;
  };
  return alpha << 24 | channel(16) | channel(8) | channel(0);
}

}  // namespace

void show_icon(SDL_Window* window, const Surface& pixels) {
  const int width = pixels.width();
  std::vector<Pixel> copy;
  std::vector<Pixel> scratch;
  for (int y = 0; y < pixels.height(); ++y) {
    const Pixel* const row = pixels.read_row(y, scratch);
    std::transform(row, row + width, std::back_inserter(copy), straight);
  }
  SDL_Surface* const icon = SDL_CreateRGBSurfaceWithFormatFrom(
      copy.data(), width, pixels.height(), kBitsPerPixel, width * static_cast<int>(sizeof(Pixel)),
      SDL_PIXELFORMAT_ARGB8888);
  if (icon == nullptr) return;
  SDL_SetWindowIcon(window, icon);
  SDL_FreeSurface(icon);
}

}  // namespace corvane::system
