#include "corvane/trees/tree_loading.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <vector>

#include "corvane/trees/child_names.h"

namespace corvane {
namespace {

constexpr int most_links_followed = 100;  // to one folder

struct IdentityHash {
  std::size_t operator()(const FolderIdentity& identity) const {
    return std::hash<std::uint64_t>()(identity.folder * 31 + identity.volume);
  }
};

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
    // What was asked for is listed wherever it leads.
    if (!enter(std::move(folder), top)) return false;
    while (!levels_.empty()) step();
    return true;
  }

 private:
  struct Child {
    _NODE* node;
    FolderKind kind;
  };
  // A folder whose sub-folders are being loaded.
  struct Level {
    std::unique_ptr<OpenFolder> folder;
    std::vector<Child> children;  // those that the folder lists
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

  bool leads_back(const FolderIdentity& folder) const {
    return std::find(above_.rbegin(), above_.rend(), folder) != above_.rend();
  }
  // Folders full of links to each other would be read in every order that there is.
  bool is_followed_too_often(const FolderIdentity& target) {
    return ++links_followed_[target] > most_links_followed;
  }

  // Adds the nodes of the folder's sub-folders; they are loaded in later steps.
  bool enter(std::unique_ptr<OpenFolder> folder, _NODE& node) {
    Level level;
    ChildNames names(model_, node);
    const bool listed = folder->ListFolders([&](std::wstring_view name, FolderKind kind) {
      if (!name.starts_with(L'.')) level.children.push_back({&names.child(name), kind});
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
    const Child child = level.children[level.next++];
    std::unique_ptr<OpenFolder> folder = level.folder->OpenChild(child.node->name().AsStdString());
    if (level.next == level.children.size()) level.folder.reset();
    if (!folder) return;
    const FolderIdentity identity = folder->Identity();
    if (leads_back(identity)) return;
    if (child.kind == FolderKind::link && is_followed_too_often(identity)) return;
    enter(std::move(folder), *child.node);
  }

  TreeModel& model_;
  FolderListing& listing_;
  std::wstring path_;
  std::vector<Level> levels_;
  std::vector<FolderIdentity> above_;  // those above the top, then one for each level
  std::unordered_map<FolderIdentity, int, IdentityHash> links_followed_;
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
