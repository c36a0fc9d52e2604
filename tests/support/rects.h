#pragma once
// Rectangles and points in tests: of windows, as text, as matchers, in one colour.
#include <gmock/gmock.h>

#include <string>

#include "corvane/platform/platform.h"
#include "tests/support/golden_file.h"

namespace corvane::test {

inline RECT window_rect(HWND window) {
  RECT rect{};
  EXPECT_NE(::GetWindowRect(window, &rect), 0);
  return rect;
}

inline RECT client_rect(HWND window) {
  RECT rect{};
  EXPECT_NE(::GetClientRect(window, &rect), 0);
  return rect;
}

// Of the four numbers in a field of a table.
inline RECT rect_of(const std::string& field) {
  const auto sides = numbers_of(field);
  return {sides.at(0), sides.at(1), sides.at(2), sides.at(3)};
}

inline std::string text_of(const RECT& rect) {
  return std::to_string(rect.left) + "," + std::to_string(rect.top) + "," +
         std::to_string(rect.right) + "," + std::to_string(rect.bottom);
}

inline std::string text_of(POINT point) {
  return std::to_string(point.x) + "," + std::to_string(point.y);
}

MATCHER_P4(is_rect, left, top, right, bottom, "") {
  *result_listener << text_of(arg);
  return arg.left == left && arg.top == top && arg.right == right && arg.bottom == bottom;
}

inline auto same_rect(const RECT& rect) {
  return is_rect(rect.left, rect.top, rect.right, rect.bottom);
}

inline void fill(HDC dc, const RECT& rect, COLORREF color) {
  const HBRUSH brush = ::CreateSolidBrush(color);
  ::FillRect(dc, &rect, brush);
  ::DeleteObject(brush);
}

}  // namespace corvane::test
