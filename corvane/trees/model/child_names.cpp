#include "corvane/trees/model/child_names.h"

namespace corvane {
namespace {

constexpr std::size_t kMaxSearchedOneByOne = 8;

}  // namespace

_NODE& ChildNames::child(std::wstring_view name) {
  if (_NODE* known = find(name)) return *known;
  _NODE& added = model_.append_child(name, parent_);
  if (!index_.empty()) index_.emplace(added.name().AsStdString(), &added);
  return added;
}

_NODE* ChildNames::find(std::wstring_view name) {
  if (parent_.children().size() > kMaxSearchedOneByOne) {
    if (index_.empty()) make_index();
    const auto found = index_.find(name);
    return found == index_.end() ? nullptr : found->second;
  }
  for (const _NODE& each : parent_.children()) {
    if (each.name().AsStdString() == name) return const_cast<_NODE*>(&each);
  }
  return nullptr;
}

void ChildNames::make_index() {
  for (const _NODE& each : parent_.children()) {
    index_.emplace(each.name().AsStdString(), const_cast<_NODE*>(&each));
  }
}

}  // namespace corvane
