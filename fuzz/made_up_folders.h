#pragma once
// Folders that lie on no disk: what is below a path follows from its name alone. Some cannot be
// opened, some are links back.
#include <memory>
#include <string>

#include "corvane/platform/base_services/folder_listing.h"

class MadeUpFolder : public corvane::OpenFolder {
 public:
  MadeUpFolder(std::uint64_t number, int depth) : number_(number), depth_(depth) {}

  corvane::FolderIdentity identity() const override { return {1, number_ % 61}; }
  bool list_folders(const corvane::FoundFolder& found) override {
    static constexpr int kDeepest = 5;
    if (depth_ >= kDeepest) return number_ % 2 == 0;
    const auto kind = corvane::FolderKind{number_ % 3 == 0};
    for (std::uint64_t child = 0; child < number_ % 5; ++child) found(std::to_wstring(child), kind);
    return true;
  }
  std::unique_ptr<corvane::OpenFolder> open_child(std::wstring_view name) const override {
    const std::uint64_t child = number_ * 7 + static_cast<std::uint64_t>(name.front());
    return child % 11 == 0 ? nullptr : std::make_unique<MadeUpFolder>(child, depth_ + 1);
  }

 private:
  std::uint64_t number_;
  int depth_;
};

class MadeUpListing : public corvane::FolderListing {
 public:
  std::unique_ptr<corvane::OpenFolder> open(const wchar_t* path) override {
    std::uint64_t number = 0;
    for (; *path; ++path) number = number * 31 + static_cast<std::uint64_t>(*path);
    return number % 7 == 0 ? nullptr : std::make_unique<MadeUpFolder>(number, 0);
  }
};
