#include "corvane/platform/system/shell/folder_pool.h"

#include <fcntl.h>

#include <cerrno>
#include <utility>

#include "corvane/platform/system/shell/open_path.h"
#include "corvane/platform/system/shell/wide_name.h"

namespace corvane::system {
namespace {

constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK;
constexpr std::size_t kMaxDescriptors = 128;

}  // namespace

// A block of memory to list with, and the folder's hold on its descriptor. The blocks are used
// again.
class FolderPool::ListingInUse {
 public:
  ListingInUse(FolderPool& pool, PooledFolder& folder) : pool_(pool), folder_(folder) {
    if (pool_.idle_listings_.empty()) {
      listing_ = std::make_unique<Listing>();
    } else {
      listing_ = std::move(pool_.idle_listings_.back());
      pool_.idle_listings_.pop_back();
    }
    listing_->reader.restart();
    if (folder_.listings_++ == 0) folder_.move_to(pool_.in_listing_);
  }
  ~ListingInUse() {
    if (--folder_.listings_ == 0) folder_.move_to(pool_.by_use_);
    pool_.idle_listings_.push_back(std::move(listing_));
  }
  ListingInUse(const ListingInUse&) = delete;
  ListingInUse& operator=(const ListingInUse&) = delete;

  EntryReader& reader() { return listing_->reader; }
  std::wstring& name() { return listing_->name; }

 private:
  FolderPool& pool_;
  PooledFolder& folder_;
  std::unique_ptr<Listing> listing_;
};

FolderPool::Folder FolderPool::open(const std::string& path) {
  FileDescriptor descriptor = open_path(path, kFolderFlags);
  struct stat status;
  if (!descriptor || fstat(descriptor.number(), &status) != 0) return nullptr;
  auto folder = std::make_shared<PooledFolder>(nullptr, std::string(), status);
  folder->descriptor_ = std::move(descriptor);
  return folder;
}

FolderPool::Folder FolderPool::open_child(const Folder& parent, std::wstring_view name) {
  name_bytes_.clear();
  if (name.find_first_of(L"\\/") != name.npos || !append_bytes(name_bytes_, name, '/')) {
    return nullptr;
  }
  if (is_dot_or_dot_dot(name_bytes_.c_str()) || !reach(*parent)) return nullptr;
  FileDescriptor descriptor = open_descriptor(*parent, name_bytes_.c_str());
  struct stat status;
  if (!descriptor || fstat(descriptor.number(), &status) != 0) return nullptr;
  auto folder = std::make_shared<PooledFolder>(parent, name_bytes_, status);
  occupy(*folder, std::move(descriptor));
  return folder;
}

bool FolderPool::list_folders(PooledFolder& folder, const FoundName& found) {
  if (!reach(folder)) return false;
  if (folder.listed_ && lseek(folder.descriptor_.number(), 0, SEEK_SET) != 0) return false;
  folder.listed_ = true;
  ListingInUse listing(*this, folder);
  const int descriptor = folder.descriptor_.number();
  const dirent64* entry = listing.reader().next(descriptor);
  if (entry == nullptr && listing.reader().error() != 0) return false;
  for (; entry != nullptr; entry = listing.reader().next(descriptor)) {
    if (is_dot_or_dot_dot(entry->d_name)) continue;
    const EntryKind kind = kind_of(descriptor, *entry);
    if (kind == EntryKind::other) continue;
    listing.name().clear();
    append_wide_name(listing.name(), entry->d_name);
    found(listing.name(), kind == EntryKind::link_to_folder);
  }
  return true;
}

void FolderPool::release(PooledFolder& folder) {
  if (folder.listings_ == 0 && !folder.is_root()) folder.give_up_descriptor();
}

// Sees to it that the folder has a descriptor.
bool FolderPool::reach(PooledFolder& folder) {
  if (!folder.descriptor_) return reopen(folder);
  if (folder.listings_ == 0) folder.move_to(by_use_);
  return true;
}

bool FolderPool::reopen(PooledFolder& folder) {
  std::vector<PooledFolder*> way;
  PooledFolder* above = &folder;
  for (; !above->descriptor_; above = above->parent_.get()) way.push_back(above);
  for (; !way.empty(); way.pop_back()) {
    FileDescriptor descriptor = open_descriptor(*above, way.back()->name_.c_str());
    struct stat status;
    if (!descriptor || fstat(descriptor.number(), &status) != 0) return false;
    if (!way.back()->is(status)) return false;
    above = way.back();
    above->listed_ = false;
    occupy(*above, std::move(descriptor));
  }
  return true;
}

// Other parts of the program may have taken all descriptors that there are.
FileDescriptor FolderPool::open_descriptor(const PooledFolder& parent, const char* name) {
  while (true) {
    FileDescriptor descriptor(openat(parent.descriptor_.number(), name, kFolderFlags));
    const bool none_left = errno == EMFILE || errno == ENFILE;
    if (descriptor || !none_left || by_use_.empty() || by_use_.back() == &parent) return descriptor;
    by_use_.back()->give_up_descriptor();
  }
}

void FolderPool::occupy(PooledFolder& folder, FileDescriptor descriptor) {
  folder.descriptor_ = std::move(descriptor);
  by_use_.push_front(&folder);
  folder.places_ = &by_use_;
  folder.place_ = by_use_.begin();
  if (by_use_.size() > kMaxDescriptors) by_use_.back()->give_up_descriptor();
}

}  // namespace corvane::system
