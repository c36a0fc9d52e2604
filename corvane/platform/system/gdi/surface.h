#pragma once
// Pixels in memory: 32-bit premultiplied ARGB (0xAARRGGBB), rows from top to bottom.
#include <cstdint>
#include <optional>
#include <vector>

#include "corvane/platform/system/gdi/region.h"
#include "corvane/platform/system/types.h"

namespace corvane::system {

using Pixel = std::uint32_t;

// COLORREF (0x00BBGGRR) and pixel (0x00RRGGBB) with an alpha byte of 0.
constexpr Pixel pixel_of(COLORREF color) {
  return ((color & 0xFF) << 16) | (color & 0xFF00) | ((color >> 16) & 0xFF);
}
constexpr COLORREF color_of(Pixel pixel) {
  return ((pixel & 0xFF) << 16) | (pixel & 0xFF00) | ((pixel >> 16) & 0xFF);
}

// A surface of one colour holds no pixels at all until something else is drawn into it, so a
// window that only shows its background brush costs no memory.
//
// Whoever writes pixels marks the rectangle; the compositor collects the marks once per turn.
class Surface {
 public:
  Surface(int width, int height, Pixel color = 0);  // negative sizes act as 0
  int width() const { return width_; }
  int height() const { return height_; }
  int stride() const { return width_; }  // in pixels
  RECT rect() const { return {0, 0, width_, height_}; }

  // The one colour of the whole surface, when nothing else was drawn.
  std::optional<Pixel> uniform() const;
  // Row pointers stay valid until resize() or fill(). row() makes the pixels real first.
  Pixel* row(int y);
  // Reads a row: null while the surface is uniform (use uniform()).
  const Pixel* row_if_stored(int y) const;
  Pixel at(int x, int y) const;  // 0 outside

  void fill(const RECT& rect, Pixel color);  // clipped to the surface; does not mark
  void resize(int width, int height);        // keeps the upper left part, new pixels are 0

  // Damage since the last take, in surface coordinates.
  void mark(const RECT& rect);
  Region take_marks();

 private:
  void store();
  int width_;
  int height_;
  bool uniform_ = true;
  Pixel color_;
  std::vector<Pixel> pixels_;
  Region marks_;
};

}  // namespace corvane::system
