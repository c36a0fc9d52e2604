#include "apps/capture/thumbnail_order.h"

#include <algorithm>

namespace capture {

CellRange neighbourhood(const CellRange& visible, int count) {
  const int width = visible.last - visible.first;
  return {std::max(visible.first - width, 0), std::min(visible.last + width, count)};
}

std::vector<int> load_order(const CellRange& visible, int count) {
  const CellRange all = neighbourhood(visible, count);
  std::vector<int> order;
  for (int cell = visible.first; cell < visible.last; ++cell) order.push_back(cell);
  for (int away = 0; away < visible.last - visible.first; ++away) {
    if (visible.last + away < all.last) order.push_back(visible.last + away);
    if (visible.first - 1 - away >= all.first) order.push_back(visible.first - 1 - away);
  }
  return order;
}

}  // namespace capture
