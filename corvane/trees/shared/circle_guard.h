#pragma once
// Keeps a walk down the folders of a disk from going round in circles: links may lead back to a
// folder above themselves, or into folders full of links to each other.
#include <string_view>
#include <unordered_map>
#include <vector>

#include "corvane/platform/base_services/folder_listing.h"

namespace corvane {

class CircleGuard {
 public:
  // Enters the folders above the one where the walk begins: links to them lead back into it, too.
  void enter_all_above(FolderListing& listing, std::wstring_view path);

  // The walk goes into a folder below the one entered last, and comes out of the last one.
  void enter(const FolderIdentity& folder) { entered_.push_back(folder); }
  void leave() { entered_.pop_back(); }

  // Whether the walk may enter a folder that it found: none that it is in already, and none by more
  // than a hundred links, which count as they are asked about.
  bool lets_in(const FolderIdentity& folder, FolderKind kind);

 private:
  struct IdentityHash {
    std::size_t operator()(const FolderIdentity& identity) const;
  };

  std::vector<FolderIdentity> entered_;  // outermost first
  std::unordered_map<FolderIdentity, int, IdentityHash> links_followed_;
};

}  // namespace corvane
