#include "tests/support/frame.h"

#include <algorithm>

namespace corvane::test {

COLORREF Frame::at(int x, int y) const {
  if (x < 0 || y < 0 || x >= size_.cx || y >= size_.cy) return CLR_INVALID;
  const std::uint32_t pixel = pixels_[static_cast<std::size_t>(y * size_.cx + x)];
  return ((pixel & 0xFF) << 16) | (pixel & 0xFF00) | ((pixel >> 16) & 0xFF);
}

int Frame::count(const RECT& rect, const std::function<bool(COLORREF)>& condition,
                 RECT* bounds) const {
  int number = 0;
  RECT around{rect.right, rect.bottom, rect.left, rect.top};
  for (int y = rect.top; y < rect.bottom; ++y) {
    for (int x = rect.left; x < rect.right; ++x) {
      if (!condition(at(x, y))) continue;
      ++number;
      around = {std::min<LONG>(around.left, x), std::min<LONG>(around.top, y),
                std::max<LONG>(around.right, x + 1), std::max<LONG>(around.bottom, y + 1)};
    }
  }
  if (bounds != nullptr) *bounds = number > 0 ? around : RECT{};
  return number;
}

}  // namespace corvane::test
