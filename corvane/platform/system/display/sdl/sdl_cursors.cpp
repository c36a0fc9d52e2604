#include "corvane/platform/system/display/sdl/sdl_cursors.h"

#include "corvane/platform/system/display/sdl/drawn_cursors.h"

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

SDL_Cursor* make_cursor(CursorShape shape) {
  DrawnCursor drawn = draw_cursor(shape);
  if (drawn.pixels.empty()) return SDL_CreateSystemCursor(native_shape(shape));
  SDL_Surface* const picture = SDL_CreateRGBSurfaceWithFormatFrom(
      drawn.pixels.data(), drawn.size.cx, drawn.size.cy, 32,
      drawn.size.cx * static_cast<int>(sizeof(Pixel)), SDL_PIXELFORMAT_ARGB8888);
  SDL_Cursor* const cursor = SDL_CreateColorCursor(picture, drawn.hotspot.x, drawn.hotspot.y);
  SDL_FreeSurface(picture);
  return cursor;
}

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

}  // namespace corvane::system
