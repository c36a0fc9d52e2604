#include "corvane/trees/owner_drawn/tree_layout.h"

#include <algorithm>
#include <limits>

#include "corvane/platform/geometry.h"
#include "corvane/trees/model/tree_walk.h"

namespace corvane {
namespace {

RECT row_rect(int row, int width) {
  const long long top = static_cast<long long>(row) * kTreeRowHeight;
  return {0, clamp_coordinate(top), std::max(width, 0), clamp_coordinate(top + kTreeRowHeight)};
}

}  // namespace

LONG TreeLayout::arrange(TreeModel& model, int width) {
  if (model.empty()) return 0;
  if (!is_complete(model) || width != width_) {
    rows_.clear();
    _NODE& root = model.root();
    root.row_ = row_rect(0, width);
    rows_.push_back(&root);
    TreeWalk walk(root);
    while (_NODE* node = walk.next()) {
      node->row_ = row_rect(static_cast<int>(rows_.size()), width);
      rows_.push_back(node);
    }
    width_ = width;
    complete_revision_ = model.revision();
  }
  return static_cast<LONG>(rows_.size()) * kTreeRowHeight;
}

int TreeLayout::arrange_below(_NODE* node, int width, int row) {
  if (node == nullptr) return row;
  complete_revision_ = 0;
  TreeWalk walk(*node);
  while (_NODE* below = walk.next()) {
    below->row_ = row_rect(row, width);
    if (row < (std::numeric_limits<int>::max)()) ++row;
  }
  return row;
}

_NODE* TreeLayout::node_at(TreeModel& model, POINT point) const {
  if (::PtInRect(&model.root().row_, point)) return &model.root();
  return node_below_at(model, &model.root(), point);
}

_NODE* TreeLayout::node_below_at(const TreeModel& model, _NODE* node, POINT point) const {
  if (node == nullptr || !node->expanded()) return nullptr;
  if (is_complete(model) && has_row(*node)) {
    if (point.x < 0 || point.x >= width_ || point.y < 0) return nullptr;
    const std::size_t number = row_number(point.y);
    if (number >= rows_.size() || !is_below(*rows_[number], *node)) return nullptr;
    return rows_[number];
  }
  TreeWalk walk(*node);
  while (_NODE* below = walk.next()) {
    if (::PtInRect(&below->row_, point)) return below;
  }
  return nullptr;
}

std::vector<const _NODE*> TreeLayout::rows_below(const TreeModel& model, _NODE& node, LONG top,
                                                 LONG bottom) const {
  std::vector<const _NODE*> found;
  if (!node.expanded() || top >= bottom) return found;
  if (is_complete(model) && has_row(node)) {
    std::size_t number =
        std::max(row_number(std::max<LONG>(top, 0)), row_number(node.row_.top) + 1);
    if (number >= rows_.size() || !is_below(*rows_[number], node)) return found;
    for (; number < rows_.size(); ++number) {
      const _NODE& below = *rows_[number];
      if (below.row_.top >= bottom || below.level_ <= node.level_) break;
      found.push_back(&below);
    }
    return found;
  }
  TreeWalk walk(node);
  while (const _NODE* below = walk.next()) {
    if (below->row_.top < bottom && below->row_.bottom > top) found.push_back(below);
  }
  return found;
}

// Whether the complete layout shows the node.
bool TreeLayout::has_row(const _NODE& node) const {
  const std::size_t number = row_number(node.row_.top);
  return number < rows_.size() && rows_[number] == &node;
}

bool TreeLayout::is_below(const _NODE& node, const _NODE& ancestor) const {
  const _NODE* each = &node;
  while (each->level_ > ancestor.level_) each = each->parent_;
  return each == &ancestor && &node != &ancestor;
}

std::size_t TreeLayout::row_number(LONG y) const {
  return static_cast<std::size_t>(y) / kTreeRowHeight;
}

}  // namespace corvane
