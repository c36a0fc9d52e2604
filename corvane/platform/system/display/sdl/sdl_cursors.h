#pragma once
#include <SDL.h>

#include <map>
#include <memory>
#include <optional>

#include "corvane/platform/system/display/display.h"

namespace corvane::system {

// The native desktop's cursors and some of our own, made when first asked for.
class SdlCursors {
 public:
  void show(CursorShape shape);
  void show(const std::shared_ptr<const CursorImage>& image);

 private:
  struct Deleter {
    void operator()(SDL_Cursor* cursor) const { SDL_FreeCursor(cursor); }
  };
  using Cursor = std::unique_ptr<SDL_Cursor, Deleter>;

  std::map<CursorShape, Cursor> cursors_;
  std::map<std::shared_ptr<const CursorImage>, Cursor> images_;
  std::optional<CursorShape> shown_ = CursorShape::arrow;  // nothing: an image
};

}  // namespace corvane::system
