#include "corvane/trees/model/tree_node.h"

namespace corvane {

_NODE::~_NODE() { free_children(); }

// Level by level instead of child by child, so that a deep chain of folders needs no deep stack.
void _NODE::free_children() {
  std::list<_NODE> doomed = std::move(children_);
  children_.clear();
  for (_NODE& node : doomed) doomed.splice(doomed.end(), node.children_);
}

}  // namespace corvane
