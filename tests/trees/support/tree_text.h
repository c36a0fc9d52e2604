#pragma once
// A tree as text: a line for each node with '-' when it is expanded, its name and level, indented
// by how far it lies below the first.
#include <string>

#include "corvane/trees/model/tree_model.h"

namespace corvane::test {

inline std::wstring tree_text(const _NODE& node, std::size_t depth = 0) {
  std::wstring text(depth, L' ');
  text += (node.expanded() ? L"-" : L"") + node.name().AsStdString() + L' ' +
          std::to_wstring(node.level()) + L'\n';
  for (const _NODE& child : node.children()) text += tree_text(child, depth + 1);
  return text;
}
inline std::wstring tree_text(const TreeModel& model) { return tree_text(model.root()); }

}  // namespace corvane::test
