#pragma once
#include <SDL.h>

#include <map>
#include <memory>

#include "corvane/platform/system/display/display.h"

namespace corvane::system {

// The native desktop's cursors and some of our own, made when first asked for.
class SdlCursors {
 public:
  void show(CursorShape shape);

 private:
  struct Deleter {
    void operator()(SDL_Cursor* cursor) const { SDL_FreeCursor(cursor); }
  };
  using Cursor = std::unique_ptr<SDL_Cursor, Deleter>;

  std::map<CursorShape, Cursor> cursors_;
  CursorShape shown_ = CursorShape::arrow;
};

}  // namespace corvane::system
