#include "corvane/platform/system/display/sdl/sdl_cursors.h"

namespace corvane::system {

namespace {

SDL_SystemCursor native_shape(CursorShape shape) {
  switch (shape) {
    case CursorShape::ibeam:
      return SDL_SYSTEM_CURSOR_IBEAM;
    case CursorShape::wait:
      return SDL_SYSTEM_CURSOR_WAIT;
    case CursorShape::cross:
      return SDL_SYSTEM_CURSOR_CROSSHAIR;
    case CursorShape::size_nwse:
      return SDL_SYSTEM_CURSOR_SIZENWSE;
    case CursorShape::size_nesw:
      return SDL_SYSTEM_CURSOR_SIZENESW;
    case CursorShape::size_we:
      return SDL_SYSTEM_CURSOR_SIZEWE;
    case CursorShape::size_ns:
      return SDL_SYSTEM_CURSOR_SIZENS;
    case CursorShape::size_all:
      return SDL_SYSTEM_CURSOR_SIZEALL;
    case CursorShape::no:
      return SDL_SYSTEM_CURSOR_NO;
    case CursorShape::hand:
      return SDL_SYSTEM_CURSOR_HAND;
    case CursorShape::none:
    case CursorShape::arrow:
      break;
  }
  return SDL_SYSTEM_CURSOR_ARROW;
}

}  // namespace

void SdlCursors::show(CursorShape shape) {
  if (shape == shown_) return;
  shown_ = shape;
  SDL_ShowCursor(shape == CursorShape::none ? SDL_DISABLE : SDL_ENABLE);
  if (shape == CursorShape::none) return;
  Cursor& cursor = cursors_[native_shape(shape)];
  if (!cursor) cursor.reset(SDL_CreateSystemCursor(native_shape(shape)));
  if (cursor) SDL_SetCursor(cursor.get());
}

}  // namespace corvane::system
