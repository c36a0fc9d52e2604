#pragma once
// The rows of the visible nodes: 30 pixels each, from the root down, every node before what is
// below it. Coordinates are content coordinates: pixels, before scrolling.
//
// The results are those of walking over the whole tree each time. While the tree has not changed
// since the last complete layout they are looked up instead, so that they cost by the rows asked
// for.
#include <cstdint>
#include <vector>

#include "corvane/trees/model/tree_model.h"

namespace corvane {

inline constexpr int kTreeRowHeight = 30;  // pixels

class TreeLayout {
 public:
  // Gives every visible node its row, `width` pixels wide; the height of all rows. 0 and nothing
  // changes for an empty tree.
  LONG arrange(TreeModel& model, int width);
  // Only the visible descendants of one node, from the row with that number on; the next free row's
  // number.
  int arrange_below(_NODE* node, int width, int row);

  // The node whose row, as last laid out, holds the point; null: none.
  _NODE* node_at(TreeModel& model, POINT point) const;
  // The same among the visible descendants of one node.
  _NODE* node_below_at(const TreeModel& model, _NODE* node, POINT point) const;
  // The visible descendants of a node whose rows, as last laid out, touch the part from `top` down
  // to `bottom`, in order.
  std::vector<const _NODE*> rows_below(const TreeModel& model, _NODE& node, LONG top,
                                       LONG bottom) const;

 private:
  bool is_complete(const TreeModel& model) const { return complete_revision_ == model.revision(); }
  bool has_row(const _NODE& node) const;
  bool is_below(const _NODE& node, const _NODE& ancestor) const;
  std::size_t row_number(LONG y) const;

  std::vector<_NODE*> rows_;             // of the last complete layout
  std::uint64_t complete_revision_ = 0;  // the model's when rows_ was made; 0: rows_ does not count
  int width_ = 0;
};

}  // namespace corvane
