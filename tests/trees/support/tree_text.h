#pragma once
// A tree as text: a line for each node with '-' when it is expanded, its name and level, indented
// by the level.
#include <string>

#include "corvane/trees/model/tree_model.h"

namespace corvane::test {

std::wstring tree_text(const _NODE& node);
inline std::wstring tree_text(const TreeModel& model) { return tree_text(model.root()); }

}  // namespace corvane::test
