#pragma once
// Folders held open for listing, as many and as deep as wanted: only some of them occupy a file
// descriptor at a time. The others are opened again through the folders above them when they are
// needed, which fails when another folder has taken their name meanwhile.
//
// Not for several threads at once; a pool outlives its folders.
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/platform/system/shell/entry_reader.h"
#include "corvane/platform/system/shell/pooled_folder.h"

namespace corvane::system {

class FolderPool {
 public:
  using Folder = std::shared_ptr<PooledFolder>;
  // The name is valid during the call; whether it is a link's.
  using FoundName = std::function<void(std::wstring_view name, bool is_link)>;

  // `path` is a byte path. Null when it names no folder or one that must not be listed.
  Folder open(const std::string& path);
  // A sub-folder, or the folder that a link leads to, by its wide name; else null.
  Folder open_child(const Folder& parent, std::wstring_view name);
  // Calls `found` for every sub-folder, links to folders included, in the file system's order.
  // False when not even the first entry could be read. Occupies a descriptor until it returns.
  bool list_folders(PooledFolder& folder, const FoundName& found);
  // Gives the descriptor of a folder back that stays only on behalf of its sub-folders.
  void release(PooledFolder& folder);

 private:
  struct Listing {
    EntryReader reader;
    std::wstring name;
  };
  class ListingInUse;

  bool reach(PooledFolder& folder);
  bool reopen(PooledFolder& folder);
  FileDescriptor open_descriptor(const PooledFolder& parent, const char* name);
  void occupy(PooledFolder& folder, FileDescriptor descriptor);

  // The folders with descriptors, without roots; the latest use first.
  std::list<PooledFolder*> by_use_;
  std::list<PooledFolder*> in_listing_;
  std::vector<std::unique_ptr<Listing>> idle_listings_;
  std::string name_bytes_;
};

}  // namespace corvane::system
