#pragma once
#include <algorithm>
#include <limits>

namespace corvane {

// A coordinate that may lie beyond all coordinates; then the last one there is.
inline int nearest_int(long long coordinate) {
  using Limits = std::numeric_limits<int>;
  return static_cast<int>(std::clamp<long long>(coordinate, (Limits::min)(), (Limits::max)()));
}

}  // namespace corvane
