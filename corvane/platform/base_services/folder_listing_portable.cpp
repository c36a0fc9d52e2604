#include <string>
#include <utility>

#include "corvane/platform/base_services/folder_listing.h"
#include "corvane/platform/system/shell/folder_pool.h"
#include "corvane/platform/system/shell/wide_path.h"

namespace corvane {
namespace {

using system::FolderPool;

class PortableFolder : public OpenFolder {
 public:
  PortableFolder(std::shared_ptr<FolderPool> pool, FolderPool::Folder folder)
      : pool_(std::move(pool)), folder_(std::move(folder)) {}
  ~PortableFolder() override { pool_->release(*folder_); }

  FolderIdentity identity() const override { return {folder_->volume(), folder_->number()}; }
  bool list_folders(const FoundFolder& found) override {
    return pool_->list_folders(*folder_, [&found](std::wstring_view name, bool through_link) {
      found(name, through_link ? FolderKind::link : FolderKind::folder);
    });
  }
  std::unique_ptr<OpenFolder> open_child(std::wstring_view name) const override {
    FolderPool::Folder child = pool_->open_child(folder_, name);
    return child ? std::make_unique<PortableFolder>(pool_, std::move(child)) : nullptr;
  }

 private:
  std::shared_ptr<FolderPool> pool_;  // outlives the folder
  FolderPool::Folder folder_;
};

class PortableListing : public FolderListing {
 public:
  std::unique_ptr<OpenFolder> open(const wchar_t* path) override {
    if (path == nullptr) return nullptr;
    const std::string bytes = system::file_system_path(std::wstring(path) + L"\\");
    FolderPool::Folder folder = bytes.empty() ? nullptr : pool_->open(bytes);
    return folder ? std::make_unique<PortableFolder>(pool_, std::move(folder)) : nullptr;
  }

 private:
  std::shared_ptr<FolderPool> pool_ = std::make_shared<FolderPool>();
};

}  // namespace

std::unique_ptr<FolderListing> system_folder_listing() {
  return std::make_unique<PortableListing>();
}

}  // namespace corvane
