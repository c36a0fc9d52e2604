#pragma once
// Which pictures of a strip get their thumbnails, and which first.
#include <vector>

#include "apps/capture/strip_layout.h"

namespace capture {

// The visible cells and as many again on either side, cut to the row: what is worth keeping.
CellRange neighbourhood(const CellRange& visible, int count);

// The cells of the neighbourhood in the order of their loading: the visible ones from left to
// right, then the others by their distance from them.
std::vector<int> load_order(const CellRange& visible, int count);

}  // namespace capture
