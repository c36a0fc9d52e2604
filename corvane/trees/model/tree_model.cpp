#include "corvane/trees/model/tree_model.h"

#include <algorithm>
#include <cassert>
#include <string>
#include <vector>

#include "corvane/trees/shared/folder_path.h"

namespace corvane {
namespace {

std::wstring_view view(const CString& text) { return text.AsStdString(); }

std::wstring_view without_base(std::wstring_view path, std::wstring_view base) {
  if (!path.starts_with(base)) return path;
  return path.substr(std::min(base.size() + 1, path.size()));
}

}  // namespace

_NODE* TreeModel::add_child(const wchar_t* name, _NODE* parent) {
  if (name == nullptr) return nullptr;
  if (parent == nullptr) return start_over(name);
  _NODE* const known = child_named(name, *parent);
  return known != nullptr ? known : &append_child(name, *parent);
}

_NODE* TreeModel::child_named(std::wstring_view name, _NODE& parent) {
  constexpr std::size_t kMaxSearchedOneByOne = 8;
  if (parent.children_.size() <= kMaxSearchedOneByOne) {
    const auto found = std::find_if(parent.children_.begin(), parent.children_.end(),
                                    [name](const _NODE& each) { return view(each.name_) == name; });
    return found == parent.children_.end() ? nullptr : &*found;
  }
  if (!parent.child_names_) {
    parent.child_names_ = std::make_unique<_NODE::NameIndex>();
    for (_NODE& each : parent.children_) parent.child_names_->emplace(view(each.name_), &each);
  }
  const auto found = parent.child_names_->find(name);
  return found == parent.child_names_->end() ? nullptr : found->second;
}

_NODE* TreeModel::start_over(std::wstring_view name) {
  CString new_name{std::wstring(name)};  // it may be the name of a node that goes now
  remove_all();
  root_.name_ = std::move(new_name);
  root_.expanded_ = 1;
  return &root_;
}

_NODE& TreeModel::append_child(std::wstring_view name, _NODE& parent) {
  assert(child_named(name, parent) == nullptr && "siblings have different names");
  _NODE& child = parent.children_.emplace_back();
  child.name_ = std::wstring(name);
  child.level_ = parent.level_ + 1;
  child.parent_ = &parent;
  if (parent.child_names_) parent.child_names_->emplace(view(child.name_), &child);
  ++revision_;
  return child;
}

_NODE* TreeModel::find(const wchar_t* path, _NODE* start) {
  _NODE* node = start != nullptr ? start : &root_;
  if (path == nullptr || !*path) return node;
  if (base_path_.IsEmpty()) return nullptr;
  std::wstring_view rest = path;
  while (true) {
    // The base path is dropped at every level, so a relative one may occur again.
    rest = without_base(rest, view(base_path_));
    const std::wstring_view first = take_component(rest);
    if (!first.empty() && first != view(node->name_)) return nullptr;
    if (rest.empty()) return node;
    const std::wstring_view wanted = rest.substr(0, rest.find(kPathSeparator));
    const auto child =
        std::find_if(node->children_.begin(), node->children_.end(),
                     [wanted](const _NODE& each) { return view(each.name_) == wanted; });
    if (child == node->children_.end()) return nullptr;
    node = &*child;
  }
}

CString TreeModel::path_of(const _NODE* node) const {
  std::vector<std::wstring_view> names;
  std::size_t length = view(base_path_).size();
  for (; node != nullptr; node = node->parent_) {
    names.push_back(view(node->name_));
    length += names.back().size() + 1;
  }
  std::wstring path;
  path.reserve(length);
  path += view(base_path_);
  for (auto name = names.rbegin(); name != names.rend(); ++name) append_component(path, *name);
  return path;
}

bool TreeModel::is_path_of(const CString& path, const _NODE& node) const {
  std::wstring_view rest = view(path);
  for (const _NODE* each = &node; each != nullptr; each = each->parent_) {
    if (!take_last_component(rest, view(each->name_))) return false;
  }
  return rest == view(base_path_);
}

bool TreeModel::rename(_NODE* node, const wchar_t* name) {
  if (node == nullptr || name == nullptr || *name == L'\0') return false;
  const CString former_path = path_of(node);
  if (node->parent_ != nullptr) node->parent_->child_names_.reset();
  node->name_ = name;
  highlight_path_ = path_of(node);
  if (current_path_ == former_path) current_path_ = highlight_path_;
  return true;
}

bool TreeModel::remove(_NODE* node) {
  if (node == nullptr) return false;
  if (node->parent_ == nullptr) {
    remove_all();
    return true;
  }
  std::list<_NODE>& siblings = node->parent_->children_;
  const auto found = std::find_if(siblings.begin(), siblings.end(), [node](const _NODE& sibling) {
    return sibling.name_ == node->name_;
  });
  if (found == siblings.end()) return false;
  node->parent_->child_names_.reset();
  siblings.erase(found);
  ++revision_;
  return true;
}

bool TreeModel::remove(const wchar_t* path) {
  if (path == nullptr) return false;
  // A copy: the path may be a name of the node that goes.
  const std::wstring parent{parent_path(path)};
  if (!remove(find(path))) return false;
  if (view(current_path_).find(parent) != std::wstring_view::npos) current_path_ = parent;
  highlight_current();
  return true;
}

void TreeModel::remove_all() {
  root_.free_children();
  root_.name_.Empty();
  root_.expanded_ = 0;
  root_.level_ = 0;
  root_.row_ = {0, 0, 0, 0};
  root_.parent_ = nullptr;
  ++revision_;
}

void TreeModel::set_expanded(_NODE& node, bool expanded) {
  if (node.expanded() == expanded) return;
  node.expanded_ = expanded ? 1 : 0;
  ++revision_;
}

void TreeModel::expand_with_ancestors(_NODE& node) {
  for (_NODE* each = &node; each != nullptr; each = each->parent_) set_expanded(*each, true);
}

}  // namespace corvane
