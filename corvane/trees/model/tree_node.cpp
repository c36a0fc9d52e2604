#include "corvane/trees/model/tree_node.h"

#include "corvane/platform/geometry.h"

namespace corvane {

_NODE::~_NODE() { free_children(); }

// Level by level instead of child by child, so that a deep chain of folders needs no deep stack.
void _NODE::free_children() {
  std::list<_NODE> doomed = std::move(children_);
  children_.clear();
  child_names_.reset();
  for (_NODE& node : doomed) doomed.splice(doomed.end(), node.children_);
}

RECT row_in_client(const _NODE& node, int position) {
  RECT row = node.row();
  row.top = clamp_coordinate(std::int64_t{row.top} - position);
  row.bottom = clamp_coordinate(std::int64_t{row.bottom} - position);
  return row;
}

}  // namespace corvane
