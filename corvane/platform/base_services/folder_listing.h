#pragma once
// Lists the sub-folders of folders, step by step down a tree. One implementation for Windows, one
// for all others.
//
// A listing and its folders are for one thread at a time. Any number of folders may be open at any
// depth. What changes on the disk meanwhile may be seen or not.
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

namespace corvane {

// The same for two openings of one folder, whatever path or link led to it.
struct FolderIdentity {
  std::uint64_t volume = 0;
  std::uint64_t folder = 0;
  bool operator==(const FolderIdentity&) const = default;
};

enum class FolderKind { folder, link };  // link: a symbolic link or junction that leads to one

// Takes the name of a sub-folder, which is valid during the call only. The call may open and list
// other folders, but not destroy the one that is being listed.
using FoundFolder = std::function<void(std::wstring_view name, FolderKind kind)>;

// A folder held open for listing. It may outlive the folder and the listing that it came from.
class OpenFolder {
 public:
  OpenFolder() = default;
  OpenFolder(const OpenFolder&) = delete;
  OpenFolder& operator=(const OpenFolder&) = delete;
  virtual ~OpenFolder() = default;

  virtual FolderIdentity identity() const = 0;
  // Hands over the name of every sub-folder, links to folders and hidden ones included, in the file
  // system's order; "." and ".." never. False when not even the first entry could be read; a
  // listing that fails later just ends. Each call lists anew.
  virtual bool list_folders(const FoundFolder& found) = 0;
  // By a name as list_folders gave it; a path, "." and ".." are no names. Null when it cannot be
  // opened.
  virtual std::unique_ptr<OpenFolder> open_child(std::wstring_view name) const = 0;
};

class FolderListing {
 public:
  FolderListing() = default;
  FolderListing(const FolderListing&) = delete;
  FolderListing& operator=(const FolderListing&) = delete;
  virtual ~FolderListing() = default;

  // Opens what the wide path with a backslash behind it names: "D:" is the root of that drive. Null
  // for what is no folder or cannot be listed, and for a null path.
  virtual std::unique_ptr<OpenFolder> open(const wchar_t* path) = 0;
};

// The listing of the system's own files.
std::unique_ptr<FolderListing> system_folder_listing();

}  // namespace corvane
