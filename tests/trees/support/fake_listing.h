#pragma once
// Folders in memory that can fail wherever they are asked.
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "corvane/platform/base_services/folder_listing.h"

namespace corvane::test {

class FakeListing : public corvane::FolderListing {
 public:
  // "root\\a\\b" with everything above it; siblings are listed in the order in which they came.
  void add(const std::wstring& path);
  // An entry of that path which leads to another folder.
  void add_link(const std::wstring& path, const std::wstring& target);
  // A chain of folders, each beside another one without sub-folders.
  void add_comb(const std::wstring& path, int depth);

  std::unique_ptr<corvane::OpenFolder> open(const wchar_t* path) override;

  // The operation with that number, counted from 1, fails: opening a folder, beginning to list it,
  // or handing over its next name.
  void fail_at(int operation) { failing_ = operation; }
  int operations() const { return operations_; }
  // Where the failure was: the folder's path, and how many names it had handed over.
  struct Failure {
    std::wstring folder;
    std::size_t names = 0;
  };
  const std::optional<Failure>& failure() const { return failure_; }

  int open_folders() const { return open_; }

 private:
  friend class FakeFolder;
  bool fails(const std::wstring& folder, std::size_t names);
  std::unique_ptr<corvane::OpenFolder> open_path(std::wstring path);

  std::map<std::wstring, std::vector<std::wstring>> names_;
  std::map<std::wstring, std::wstring> links_;
  std::map<std::wstring, std::uint64_t> identities_;
  std::uint64_t last_identity_ = 0;
  int failing_ = 0;
  int operations_ = 0;
  std::optional<Failure> failure_;
  int open_ = 0;
};

}  // namespace corvane::test
