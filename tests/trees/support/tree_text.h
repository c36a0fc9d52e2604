#pragma once
// A tree as text: a line for each node with '-' when it is expanded, its name and level, indented
// by the level. Names outside ASCII are written as \u.
#include <string>

#include "corvane/trees/model/tree_model.h"

namespace corvane::test {

std::string tree_text(const corvane::_NODE& node);
inline std::string tree_text(const corvane::TreeModel& model) { return tree_text(model.root()); }

}  // namespace corvane::test
