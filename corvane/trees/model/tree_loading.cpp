#include "corvane/trees/model/tree_loading.h"

#include <string>
#include <vector>

#include "corvane/trees/model/child_names.h"
#include "corvane/trees/shared/circle_guard.h"
#include "corvane/trees/shared/folder_path.h"

namespace corvane {
namespace {

// A walk over the folders below one, which keeps what lies between it and the current folder.
class FolderLoad {
 public:
  FolderLoad(TreeModel& model, FolderListing& listing, std::wstring path)
      : model_(model), listing_(listing), path_(std::move(path)) {}

  bool run(_NODE& top) {
    std::unique_ptr<OpenFolder> folder = listing_.open(path_.c_str());
    if (!folder) return false;
    guard_.enter_all_above(listing_, path_);
    // What was asked for is listed wherever it leads.
    if (!enter(std::move(folder), top, FolderKind::folder)) return false;
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

  // Adds the nodes of the folder's sub-folders; they are loaded in later steps.
  bool enter(std::unique_ptr<OpenFolder> folder, _NODE& node, FolderKind found_as) {
    Level level;
    ChildNames names(model_, node);
    const bool listed = folder->list_folders([&](std::wstring_view name, FolderKind kind) {
      if (!name.starts_with(L'.')) level.children.push_back({&names.child(name), kind});
    });
    if (level.children.empty()) return listed;
    guard_.enter(folder->identity(), found_as);
    level.folder = std::move(folder);
    levels_.push_back(std::move(level));
    return listed;
  }

  void step() {
    Level& level = levels_.back();
    if (level.next == level.children.size()) {
      levels_.pop_back();
      guard_.leave();
      return;
    }
    const Child child = level.children[level.next++];
    std::unique_ptr<OpenFolder> folder = level.folder->open_child(child.node->name().AsStdString());
    if (level.next == level.children.size()) level.folder.reset();
    if (!folder) return;
    if (!guard_.lets_in(folder->identity(), child.kind)) return;
    enter(std::move(folder), *child.node, child.kind);
  }

  TreeModel& model_;
  FolderListing& listing_;
  std::wstring path_;
  std::vector<Level> levels_;
  CircleGuard guard_;  // has entered those above the top, then one for each level
};

}  // namespace

bool load_folders(TreeModel& model, FolderListing& listing, const wchar_t* path, _NODE* parent) {
  if (path == nullptr) return false;
  std::wstring whole = path;  // a copy: it may be the name of a node that goes
  const std::wstring name{last_component(whole)};
  if (parent == nullptr) model.set_base_path(std::wstring(parent_path(whole)));
  _NODE& top = *model.add_child(name.c_str(), parent);
  return FolderLoad(model, listing, std::move(whole)).run(top);
}

}  // namespace corvane
