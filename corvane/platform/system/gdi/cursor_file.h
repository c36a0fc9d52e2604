#pragma once
// Cursor files (.cur, .ani): their pictures, hotspots and times.
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "corvane/platform/system/gdi/surface.h"

namespace corvane::system {

struct CursorImage {
  SIZE size{};
  POINT hotspot{};            // inside
  std::vector<Pixel> pixels;  // 0xAARRGGBB, not premultiplied; rows from top to bottom
};

struct CursorStep {
  std::shared_ptr<const CursorImage> image;
  std::uint32_t duration = 1;  // in 1/60 s, at least 1
};

inline constexpr LONG kDefaultCursorSide = 32;  // pixels

// The pictures of the file at this byte path that come nearest to `side` pixels, in the order of
// their showing; a cursor that does not move is one step. Nothing for a file that is missing, no
// regular file, damaged or beyond reason.
std::optional<std::vector<CursorStep>> read_cursor_file(const std::string& path, LONG side);

}  // namespace corvane::system
