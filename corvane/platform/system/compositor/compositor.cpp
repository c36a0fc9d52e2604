#include "corvane/platform/system/compositor/compositor.h"

#include <algorithm>
#include <cassert>
#include <iterator>

#include "corvane/platform/geometry.h"
#include "corvane/platform/system/compositor/row_composer.h"

namespace corvane::system {

namespace {

// Where a layer can touch the frame, in frame coordinates.
struct Placed {
  const Layer* layer;
  RECT area;
};

struct Span {
  int left;
  int right;
  std::vector<const Layer*> stack;  // bottom first, from the topmost opaque one
};

RECT touched_area(const Layer& layer, const RECT& frame) {
  const std::int64_t left = layer.origin.x;
  const std::int64_t top = layer.origin.y;
  const RECT placed{clamp_coordinate(left, frame.left, frame.right),
                    clamp_coordinate(top, frame.top, frame.bottom),
                    clamp_coordinate(left + layer.surface->width(), frame.left, frame.right),
                    clamp_coordinate(top + layer.surface->height(), frame.top, frame.bottom)};
  return intersection(placed, layer.clip);
}

std::vector<Placed> place(const std::vector<Layer>& layers, const RECT& rect) {
  std::vector<Placed> placed;
  for (const Layer& layer : layers) {
    if (!layer.surface || layer.alpha == 0) continue;
    const RECT area = touched_area(layer, rect);
    if (has_area(area)) placed.push_back({&layer, area});
  }
  return placed;
}

// The coordinates from `from` to `to` between which the same layers are touched.
std::vector<int> edges(const std::vector<Placed>& placed, LONG RECT::*low, LONG RECT::*high,
                       int from, int to) {
  std::vector<int> result{from, to};
  for (const Placed& one : placed) {
    for (const int edge : {one.area.*low, one.area.*high}) {
      if (edge > from && edge < to) result.push_back(edge);
    }
  }
  std::sort(result.begin(), result.end());
  result.erase(std::unique(result.begin(), result.end()), result.end());
  return result;
}

bool hides_what_is_below(const Layer& layer) {
  return layer.alpha == 255 && !layer.keyed && !layer.pixel_alpha;
}

std::vector<const Layer*> stack_at(const std::vector<Placed>& placed, int x) {
  std::vector<const Layer*> stack;
  for (auto one = placed.rbegin(); one != placed.rend(); ++one) {
    const RECT& area = one->area;
    if (x < area.left || x >= area.right) continue;
    stack.push_back(one->layer);
    if (hides_what_is_below(*one->layer)) break;
  }
  std::reverse(stack.begin(), stack.end());
  return stack;
}

// `placed` are those that touch the row.
std::vector<Span> spans_of_row(const std::vector<Placed>& placed, const RECT& rect) {
  std::vector<Span> spans;
  const std::vector<int> columns = edges(placed, &RECT::left, &RECT::right, rect.left, rect.right);
  for (std::size_t i = 0; i + 1 < columns.size(); ++i) {
    std::vector<const Layer*> stack = stack_at(placed, columns[i]);
    if (!spans.empty() && spans.back().stack == stack) {
      spans.back().right = columns[i + 1];
    } else {
      spans.push_back({columns[i], columns[i + 1], std::move(stack)});
    }
  }
  return spans;
}

std::vector<Placed> touching(const std::vector<Placed>& placed, int y) {
  std::vector<Placed> result;
  std::copy_if(placed.begin(), placed.end(), std::back_inserter(result),
               [y](const Placed& one) { return y >= one.area.top && y < one.area.bottom; });
  return result;
}

void compose_rect(Surface& frame, const RECT& rect, const std::vector<Layer>& layers,
                  RowComposer& composer) {
  const std::vector<Placed> placed = place(layers, rect);
  const std::vector<int> rows = edges(placed, &RECT::top, &RECT::bottom, rect.top, rect.bottom);
  for (std::size_t band = 0; band + 1 < rows.size(); ++band) {
    const std::vector<Span> spans = spans_of_row(touching(placed, rows[band]), rect);
    for (int y = rows[band]; y < rows[band + 1]; ++y) {
      Pixel* const row = frame.row(y);
      assert(row != nullptr);
      for (const Span& span : spans) {
        composer.compose(row + span.left, {span.left, y}, span.right - span.left, span.stack);
      }
    }
  }
}

}  // namespace

void compose(Surface& frame, const Region& damage, const std::vector<Layer>& layers,
             Pixel background) {
  RowComposer composer(background);
  const RECT bounds = frame.rect();
  for (const RECT& rect : damage.rects()) {
    const RECT visible = intersection(rect, bounds);
    if (has_area(visible)) compose_rect(frame, visible, layers, composer);
  }
}

}  // namespace corvane::system
