#include "corvane/trees/tree_loading.h"

#include <algorithm>
#include <string>
#include <vector>

#include "corvane/trees/child_names.h"

namespace corvane {
namespace {

std::wstring_view parent_path(std::wstring_view path) {
  const std::size_t separator = path.rfind(L'\\');
  return separator == std::wstring_view::npos ? std::wstring_view() : path.substr(0, separator);
}

std::wstring_view last_component(std::wstring_view path) {
  return path.substr(path.rfind(L'\\') + 1);  // npos + 1 is 0
}

// A walk over the folders below one, which keeps what lies between it and the current folder.
class FolderLoad {
 public:
  FolderLoad(TreeModel& model, FolderListing& listing, std::wstring path)
      : model_(model), listing_(listing), path_(std::move(path)) {}

  bool run(_NODE& top) {
    std::unique_ptr<OpenFolder> folder = listing_.Open(path_.c_str());
    if (!folder) return false;
    find_folders_above();
    // The root is what the user asked for, wherever it leads.
    if (top.parent() && leads_back(*folder)) return true;
    if (!enter(std::move(folder), top)) return false;
    while (!levels_.empty()) step();
    return true;
  }

 private:
  // A folder whose sub-folders are being loaded.
  struct Level {
    std::unique_ptr<OpenFolder> folder;
    std::vector<_NODE*> children;  // those that the folder lists
    std::size_t next = 0;
  };

  // Links to folders above the top of the walk lead back into it, too.
  void find_folders_above() {
    std::wstring_view above = parent_path(path_);
    for (; !above.empty(); above = parent_path(above)) {
      const auto folder = listing_.Open(std::wstring(above).c_str());
      if (folder) above_.push_back(folder->Identity());
    }
  }

  bool leads_back(const OpenFolder& folder) const {
    return std::find(above_.rbegin(), above_.rend(), folder.Identity()) != above_.rend();
  }

  // Adds the nodes of the folder's sub-folders; they are loaded in later steps.
  bool enter(std::unique_ptr<OpenFolder> folder, _NODE& node) {
    Level level;
    ChildNames names(model_, node);
    const bool listed = folder->ListFolders([&](std::wstring_view name) {
      if (!name.starts_with(L'.')) level.children.push_back(&names.child(name));
    });
    if (level.children.empty()) return listed;
    above_.push_back(folder->Identity());
    level.folder = std::move(folder);
    levels_.push_back(std::move(level));
    return listed;
  }

  void step() {
    Level& level = levels_.back();
    if (level.next == level.children.size()) {
      levels_.pop_back();
      above_.pop_back();
      return;
    }
    _NODE& child = *level.children[level.next++];
    std::unique_ptr<OpenFolder> folder = level.folder->OpenChild(child.name().AsStdString());
    if (level.next == level.children.size()) level.folder.reset();
    if (folder && !leads_back(*folder)) enter(std::move(folder), child);
  }

  TreeModel& model_;
  FolderListing& listing_;
  std::wstring path_;
  std::vector<Level> levels_;
  std::vector<FolderIdentity> above_;  // those above the top, then one for each level
};

}  // namespace

bool load_folders(TreeModel& model, FolderListing& listing, const wchar_t* path, _NODE* parent) {
  if (!path) return false;
  std::wstring whole = path;  // a copy: it may be the name of a node that goes
  const std::wstring name{last_component(whole)};
  if (!parent) model.set_base_path(std::wstring(parent_path(whole)));
  _NODE& top = *model.add_child(name.c_str(), parent);
  return FolderLoad(model, listing, std::move(whole)).run(top);
}

}  // namespace corvane
