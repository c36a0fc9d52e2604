#pragma once
// What the screen showed at one moment.
#include <cstdint>
#include <functional>
#include <vector>

#include "corvane/platform/platform.h"

namespace corvane::test {

class Frame {
 public:
  // Rows from the top, 0x00RRGGBB; the highest byte counts for nothing.
  Frame(SIZE size, std::vector<std::uint32_t> pixels) : size_(size), pixels_(std::move(pixels)) {}

  COLORREF at(int x, int y) const;  // screen coordinates; CLR_INVALID outside
  // Of the rectangle's pixels, which may lie outside of the screen. `bounds` becomes the smallest
  // rectangle around the counted ones.
  int count(const RECT& rect, const std::function<bool(COLORREF)>& condition,
            RECT* bounds = nullptr) const;
  int count_other_than(const RECT& rect, COLORREF color, RECT* bounds = nullptr) const {
    return count(
        rect, [color](COLORREF each) { return each != color; }, bounds);
  }

 private:
  SIZE size_;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace corvane::test
