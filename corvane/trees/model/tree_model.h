#pragma once
// The folders of a picture library as a tree of nodes, and the three paths that go with it. Knows
// no window and no disk. Paths are wide, their components separated by '\'; names are compared
// exactly.
#include <cstdint>
#include <string_view>

#include "corvane/trees/model/tree_node.h"

namespace corvane {

class TreeModel {
 public:
  TreeModel() = default;

  _NODE& root() { return root_; }
  const _NODE& root() const { return root_; }
  bool empty() const { return root_.name_.IsEmpty(); }

  // The full path of the folder that holds the root folder, without a separator at its end.
  const CString& base_path() const { return base_path_; }
  void set_base_path(CString path) { base_path_ = std::move(path); }
  const CString& current_path() const { return current_path_; }
  void set_current_path(CString path) { current_path_ = std::move(path); }
  // The node with this path is drawn selected.
  const CString& highlight_path() const { return highlight_path_; }
  void set_highlight_path(CString path) { highlight_path_ = std::move(path); }
  void highlight_current() { set_highlight_path(current_path_); }

  // The parent's child of that name, made when there is none: the last one, collapsed. A null
  // parent: everything is removed and the root takes the name, expanded. Null: null name.
  _NODE* add_child(const wchar_t* name, _NODE* parent);
  // Only for a name that no child of the parent has.
  _NODE& append_child(std::wstring_view name, _NODE& parent);

  // The node of a full path, or of one that begins with the name of `start` (null: the root). A
  // null or empty path is `start` itself. Null: there is none, or the base path is empty.
  _NODE* find(const wchar_t* path, _NODE* start = nullptr);
  CString path_of(const _NODE* node) const;  // null: the base path
  // The same as path_of(&node) == path, without composing the path.
  bool is_path_of(const CString& path, const _NODE& node) const;

  // Gives a node another name and highlights its new path, which also becomes the current one if
  // the former path was that; a current path below it stays. The caller sees to it that no sibling
  // has the name. False and nothing changes: null node, null or empty name.
  bool rename(_NODE* node, const wchar_t* name);

  // Remove a node with all below it; the root: everything. False: there is no such node.
  bool remove(_NODE* node);
  // Afterwards the current path, when it contains the parent's path anywhere, is the parent's; and
  // the highlighted path is the current one.
  bool remove(const wchar_t* path);
  void remove_all();

  void set_expanded(_NODE& node, bool expanded);
  void expand_with_ancestors(_NODE& node);

  // Differs whenever the rows may differ.
  std::uint64_t revision() const { return revision_; }

 private:
  _NODE* start_over(std::wstring_view name);
  static _NODE* child_named(std::wstring_view name, _NODE& parent);  // null: there is none

  _NODE root_;
  CString base_path_;
  CString current_path_;
  CString highlight_path_;
  std::uint64_t revision_ = 1;
};

}  // namespace corvane
