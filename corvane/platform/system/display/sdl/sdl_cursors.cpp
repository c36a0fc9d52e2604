#include "corvane/platform/system/display/sdl/sdl_cursors.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "corvane/platform/system/display/sdl/drawn_cursors.h"
#include "corvane/platform/system/display/sdl/sdl_driver.h"

namespace corvane::system {

namespace {

SDL_SystemCursor native_shape(CursorShape shape) {
  switch (shape) {
    case CursorShape::ibeam:
      return SDL_SYSTEM_CURSOR_IBEAM;
    case CursorShape::wait:
      return SDL_SYSTEM_CURSOR_WAIT;
    default:
      return SDL_SYSTEM_CURSOR_ARROW;
  }
}

SDL_Cursor* make_cursor(SIZE size, POINT hotspot, std::vector<Pixel> pixels) {
  SDL_Surface* const picture = SDL_CreateRGBSurfaceWithFormatFrom(
      pixels.data(), size.cx, size.cy, 32, size.cx * static_cast<int>(sizeof(Pixel)),
      SDL_PIXELFORMAT_ARGB8888);
  SDL_Cursor* const cursor = SDL_CreateColorCursor(picture, hotspot.x, hotspot.y);
  SDL_FreeSurface(picture);
  return cursor;
}

SDL_Cursor* make_cursor(CursorShape shape) {
  DrawnCursor drawn = draw_cursor(shape);
  if (drawn.pixels.empty()) return SDL_CreateSystemCursor(native_shape(shape));
  return make_cursor(drawn.size, drawn.hotspot, std::move(drawn.pixels));
}

Pixel premultiplied(Pixel pixel) {
  const Pixel alpha = pixel >> 24;
  Pixel result = alpha << 24;
  for (const int shift : {0, 8, 16}) {
    result |= ((pixel >> shift & 0xFF) * alpha + 127) / 255 << shift;
  }
  return result;
}

// X takes pixels premultiplied; on Wayland SDL does that itself.
SDL_Cursor* make_cursor(const CursorImage& image) {
  std::vector<Pixel> pixels = image.pixels;
  if (is_driver("x11")) std::transform(pixels.begin(), pixels.end(), pixels.begin(), premultiplied);
  return make_cursor(image.size, image.hotspot, std::move(pixels));
}

// Kept for when they are shown again.
constexpr std::size_t kMostImages = 256;

}  // namespace

void SdlCursors::show(CursorShape shape) {
  if (shape == shown_) return;
  shown_ = shape;
  SDL_ShowCursor(shape == CursorShape::none ? SDL_DISABLE : SDL_ENABLE);
  if (shape == CursorShape::none) return;
  Cursor& cursor = cursors_[shape];
  if (!cursor) cursor.reset(make_cursor(shape));
  if (cursor) SDL_SetCursor(cursor.get());
}

void SdlCursors::show(const std::shared_ptr<const CursorImage>& image) {
  if (shown_ == CursorShape::none) SDL_ShowCursor(SDL_ENABLE);
  shown_.reset();
  auto images = images_.size() < kMostImages ? decltype(images_)() : std::exchange(images_, {});
  Cursor& cursor = images_[image];
  if (!cursor) cursor.reset(make_cursor(*image));
  if (cursor) SDL_SetCursor(cursor.get());
}

}  // namespace corvane::system
