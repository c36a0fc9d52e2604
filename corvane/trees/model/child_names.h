#pragma once
// Finds or adds many children of one node by their names, at a cost that does not grow with their
// number. No other children may be added or removed meanwhile.
#include <string_view>
#include <unordered_map>

#include "corvane/trees/model/tree_model.h"

namespace corvane {

class ChildNames {
 public:
  ChildNames(TreeModel& model, _NODE& parent) : model_(model), parent_(parent) {}

  _NODE& child(std::wstring_view name);

 private:
  _NODE* find(std::wstring_view name);
  void make_index();

  TreeModel& model_;
  _NODE& parent_;
  std::unordered_map<std::wstring_view, _NODE*> index_;  // empty while there are few
};

}  // namespace corvane
