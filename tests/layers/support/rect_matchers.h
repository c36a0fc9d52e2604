#pragma once
// Rectangles in the tests of the layers: comparing, printing, making.
#include <gmock/gmock.h>

#include <ostream>

#include "corvane/platform/platform.h"

namespace corvane_tests {

MATCHER_P4(is_rect, left, top, right, bottom, "") {
  *result_listener << "(" << arg.left << ", " << arg.top << ", " << arg.right << ", " << arg.bottom
                   << ")";
  return arg.left == left && arg.top == top && arg.right == right && arg.bottom == bottom;
}

inline auto same_rect(const RECT& rect) {
  return is_rect(rect.left, rect.top, rect.right, rect.bottom);
}

}  // namespace corvane_tests
