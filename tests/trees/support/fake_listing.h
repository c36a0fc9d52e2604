#pragma once
// Folders in memory that can fail wherever they are asked.
#include <map>
#include <string>
#include <vector>

#include "corvane/platform/base_services/folder_listing.h"

namespace corvane::test {

class FakeListing : public FolderListing {
 public:
  // "root\\a\\b" with everything above it; siblings are listed in the order in which they came.
  void add(const std::wstring& path);
  // An entry of that path which leads to another folder.
  void add_link(const std::wstring& path, const std::wstring& target);

  // As some file systems of other machines do.
  void give_all_one_number() { one_number_ = true; }

  std::unique_ptr<OpenFolder> open(const wchar_t* path) override;

  // The operation with that number, counted from 1 and from now on, fails: opening a folder,
  // beginning to list it, or handing over its next name.
  void fail_at(int operation) {
    failing_ = operation;
    operations_ = 0;
  }
  bool has_failed() const { return operations_ >= failing_; }

 private:
  friend class FakeFolder;
  bool fails() { return ++operations_ == failing_; }
  std::unique_ptr<OpenFolder> open_path(std::wstring path);

  std::map<std::wstring, std::vector<std::wstring>> names_;
  std::map<std::wstring, std::wstring> links_;
  bool one_number_ = false;
  int failing_ = 0;
  int operations_ = 0;
};

}  // namespace corvane::test
