#include "corvane/trees/tree_loading.h"

#include <algorithm>
#include <string>
#include <vector>

#include "corvane/trees/child_names.h"

namespace corvane {
namespace {

constexpr std::size_t most_open_folders = 32;

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
    std::unique_ptr<OpenFolder> folder;  // null: closed for now
    _NODE* node;
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
    Level level{nullptr, &node, {}};
    ChildNames names(model_, node);
    const bool listed = folder->ListFolders([&](std::wstring_view name) {
      if (!name.starts_with(L'.')) level.children.push_back(&names.child(name));
    });
    if (level.children.empty()) return listed;
    above_.push_back(folder->Identity());
    level.folder = std::move(folder);
    levels_.push_back(std::move(level));
    ++open_count_;
    close_outermost();
    return listed;
  }

  void step() {
    Level& level = levels_.back();
    if (level.next == level.children.size() || !open_again()) {
      leave();
      return;
    }
    _NODE& child = *level.children[level.next++];
    std::unique_ptr<OpenFolder> folder = level.folder->OpenChild(child.name().AsStdString());
    if (level.next == level.children.size()) close(level);
    if (folder && !leads_back(*folder)) enter(std::move(folder), child);
  }

  void leave() {
    close(levels_.back());
    levels_.pop_back();
    above_.pop_back();
  }

  void close(Level& level) {
    if (level.folder) --open_count_;
    level.folder.reset();
  }

  void close_outermost() {
    if (open_count_ <= most_open_folders) return;
    const auto outermost = std::find_if(levels_.begin(), levels_.end(),
                                        [](const Level& level) { return level.folder != nullptr; });
    close(*outermost);
  }

  // Opens the current level's folder if it was closed, and with it the ones above it that are
  // needed soon. False: it is no longer what it was.
  bool open_again() {
    if (levels_.back().folder) return true;
    std::unique_ptr<OpenFolder> folder = listing_.Open(path_.c_str());
    const std::size_t outside = above_.size() - levels_.size();
    for (std::size_t i = 0; folder && folder->Identity() == above_[outside + i]; ++i) {
      if (i + 1 == levels_.size()) {
        keep(levels_[i], std::move(folder));
        return true;
      }
      auto inner = folder->OpenChild(levels_[i + 1].node->name().AsStdString());
      if (i + most_open_folders / 2 >= levels_.size()) keep(levels_[i], std::move(folder));
      folder = std::move(inner);
    }
    return false;
  }

  void keep(Level& level, std::unique_ptr<OpenFolder> folder) {
    if (level.folder || level.next == level.children.size()) return;
    level.folder = std::move(folder);
    ++open_count_;
  }

  TreeModel& model_;
  FolderListing& listing_;
  std::wstring path_;
  std::vector<Level> levels_;
  std::vector<FolderIdentity> above_;  // those above the top, then one for each level
  std::size_t open_count_ = 0;         // levels whose folder is open
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
