#include "apps/capture/folder_loading.h"

#include <utility>

#include "apps/capture/sorted_listing.h"
#include "corvane/trees/model/tree_loading.h"

namespace capture {
namespace {

using namespace corvane;

// A folder of another listing, as far down as `enters` says.
class LimitedFolder : public OpenFolder {
 public:
  using Enters = std::function<bool()>;
  LimitedFolder(std::unique_ptr<OpenFolder> folder, Enters enters)
      : folder_(std::move(folder)), enters_(std::move(enters)) {}

  FolderIdentity identity() const override { return folder_->identity(); }
  bool list_folders(const FoundFolder& found) override { return folder_->list_folders(found); }
  std::unique_ptr<OpenFolder> open_child(std::wstring_view name) const override {
    if (!enters_()) return nullptr;
    std::unique_ptr<OpenFolder> child = folder_->open_child(name);
    return child ? std::make_unique<LimitedFolder>(std::move(child), enters_) : nullptr;
  }

 private:
  std::unique_ptr<OpenFolder> folder_;
  Enters enters_;
};

class LimitedListing : public FolderListing {
 public:
  explicit LimitedListing(LimitedFolder::Enters enters) : enters_(std::move(enters)) {}

  std::unique_ptr<OpenFolder> open(const wchar_t* path) override {
    std::unique_ptr<OpenFolder> folder = listing_->open(path);
    return folder ? std::make_unique<LimitedFolder>(std::move(folder), enters_) : nullptr;
  }

 private:
  std::unique_ptr<FolderListing> listing_ = sorted_listing();
  LimitedFolder::Enters enters_;
};

}  // namespace

std::unique_ptr<FolderListing> shallow_listing() {
  return std::make_unique<LimitedListing>([] { return false; });
}

std::shared_ptr<TreeModel> read_folders(const std::wstring& path, const std::stop_token& stop) {
  auto model = std::make_shared<TreeModel>();
  LimitedListing listing([stop] { return !stop.stop_requested(); });
  load_folders(*model, listing, path.c_str(), nullptr);
  return stop.stop_requested() ? nullptr : model;
}

CFolderTransfer::CFolderTransfer(std::shared_ptr<const TreeModel> source, CTreeCtrlEx2& target)
    : source_(std::move(source)) {
  const CString root = source_->path_of(&source_->root());
  if (_NODE* const to = target.FindNode(root, nullptr)) waiting_.push_back({&source_->root(), to});
}

bool CFolderTransfer::Continue(CTreeCtrlEx2& target, int nodes) {
  while (!waiting_.empty() && nodes > 0) {
    const Folder folder = waiting_.front();
    waiting_.pop_front();
    for (const _NODE& child : folder.from->children()) {
      _NODE* const added = target.AddChildNode(child.name(), folder.to);
      if (!child.children().empty()) waiting_.push_back({&child, added});
      --nodes;
    }
  }
  return !waiting_.empty();
}

}  // namespace capture
