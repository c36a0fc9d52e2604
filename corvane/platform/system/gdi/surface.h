#pragma once
// Pixels in memory: 32-bit premultiplied ARGB (0xAARRGGBB), rows from top to bottom.
#include <cstdint>
#include <memory>
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

// A row of one colour is held as that colour and its pixels are not touched until something else
// is drawn into it, so a window that only shows its background brush costs no memory and clearing
// a large overlay costs no memory traffic.
//
// Whoever writes pixels marks the rectangle; the compositor collects the marks once per turn.
class Surface {
 public:
  // Whether a surface of that size, neither below 0, can be had: 65535 pixels on each side and 2^28
  // (1 GiB) in all.
  static bool can_hold(std::int64_t width, std::int64_t height);
  // Sizes below 0 act as 0, above 65535 as 65535.
  Surface(int width, int height, Pixel color = 0);
  Surface(const Surface& other);
  Surface& operator=(const Surface& other);
  Surface(Surface&&) noexcept = default;
  Surface& operator=(Surface&&) noexcept = default;

  int width() const { return width_; }
  int height() const { return height_; }
  int stride() const { return width_; }  // in pixels
  RECT rect() const { return {0, 0, width_, height_}; }

  // The one colour of the whole surface; nothing when rows differ or hold pixels.
  std::optional<Pixel> uniform() const;
  // Makes one row real and returns it; null outside. Valid until resize() or
  // fill(). Throws bad_alloc.
  Pixel* row(int y);
  // The same for somebody who writes all of [left, right) at once: these pixels hold anything.
  Pixel* row_to_overwrite(int y, int left, int right);
  // Makes all rows real; row y starts at pixels() + y * stride() (not so when bottom-up).
  Pixel* pixels();
  // Reads a row: null while the row is of one colour (use uniform_row()) and outside.
  const Pixel* row_if_stored(int y) const;
  Pixel uniform_row(int y) const;  // the colour of a row without pixels; 0 outside
  // Reads any row: its pixels, or `scratch` filled with its colour. Null outside.
  const Pixel* read_row(int y, std::vector<Pixel>& scratch) const;
  Pixel at(int x, int y) const;  // 0 outside

  void fill(const RECT& rect, Pixel color);  // clipped to the surface; does not mark
  void resize(int width, int height);        // keeps the upper left part, new pixels are 0

  // Keeps all rows real from now on, for pixels that are handed out by address; returns the
  // lowest address. Bottom-up: the first row in memory is the lowest one.
  enum class RowOrder { top_down, bottom_up };
  Pixel* pin(RowOrder order);

  // Damage since the last take, in surface coordinates; many pieces become their bounding box.
  void mark(const RECT& rect);
  void mark(const Region& region);
  Region take_marks();

 private:
  struct Row {
    Pixel color = 0;
    bool stored = false;
  };
  Pixel* address(int y) const;
  Pixel* allocated_row(int y);

  int width_;
  int height_;
  bool pinned_ = false;
  bool bottom_up_ = false;
  std::vector<Row> rows_;
  std::unique_ptr<Pixel[]> pixels_;  // allocated when the first row is stored
  Region marks_;
};

}  // namespace corvane::system
