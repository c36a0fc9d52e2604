#pragma once
// The visible descendants of a node in the order of their rows, without recursion.
#include <list>
#include <vector>

#include "corvane/trees/model/tree_node.h"

namespace corvane {

class TreeWalk {
 public:
  // The node itself is no part of the walk; a collapsed one has no visible descendants.
  explicit TreeWalk(_NODE& node) { descend(node); }

  // The next node, or null at the end. The tree must not change meanwhile.
  _NODE* next() {
    while (!stack_.empty() && stack_.back().next == stack_.back().end) stack_.pop_back();
    if (stack_.empty()) return nullptr;
    _NODE& node = *stack_.back().next++;
    descend(node);
    return &node;
  }

 private:
  struct Siblings {
    std::list<_NODE>::iterator next;
    std::list<_NODE>::iterator end;
  };

  void descend(_NODE& node) {
    if (node.expanded_ && !node.children_.empty()) {
      stack_.push_back({node.children_.begin(), node.children_.end()});
    }
  }

  std::vector<Siblings> stack_;
};

}  // namespace corvane
