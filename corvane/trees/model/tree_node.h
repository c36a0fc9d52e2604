#pragma once
// One folder of the owner-drawn tree. Nodes are made, changed and removed by the tree (TreeModel,
// CTreeCtrlEx2) only; a pointer to a node is valid until that very node is removed.
#include <list>
#include <memory>
#include <string_view>
#include <unordered_map>

#include "corvane/platform/framework/c_string.h"
#include "corvane/platform/platform.h"

namespace corvane {

class _NODE {
 public:
  _NODE() = default;
  ~_NODE();
  _NODE(const _NODE&) = delete;  // the children know their parent's address
  _NODE& operator=(const _NODE&) = delete;

  const CString& name() const { return name_; }  // one path component; empty: an empty tree's root
  bool expanded() const { return expanded_ != 0; }
  int level() const { return level_; }  // 0: the root
  // The row in content coordinates (pixels, before scrolling), as the last layout that showed the
  // node wrote it; (0, 0, 0, 0) before.
  const RECT& row() const { return row_; }
  const std::list<_NODE>& children() const { return children_; }  // in the order they were added
  _NODE* parent() const { return parent_; }                       // null: the root

 private:
  friend class TreeModel;
  friend class TreeLayout;
  friend class TreeWalk;

  using NameIndex = std::unordered_map<std::wstring_view, _NODE*>;

  void free_children();

  CString name_;
  int expanded_ = 0;
  int level_ = 0;
  RECT row_{0, 0, 0, 0};
  std::list<_NODE> children_;
  std::unique_ptr<NameIndex> child_names_;  // the first child of each name; null: not needed yet
  _NODE* parent_ = nullptr;
};

// Where the node's row, as last laid out, lies in the client area of a window that shows the
// content from `position` (pixels) on. Rows above or below the client area have such a place, too.
RECT row_in_client(const _NODE& node, int position);

}  // namespace corvane
