#pragma once
// Keeps a walk down the folders of a disk from going round in circles: links may lead back to a
// folder above themselves, or into folders full of links to each other. Folders that are no links
// lead nowhere but down, whatever identities the file system gives them.
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
  void enter(const FolderIdentity& folder, FolderKind kind);
  void leave();

  // Whether the walk may enter a folder that it found: by a link none that it is in already, and
  // none by more than a hundred links that stand below other links. They count as they are asked
  // about.
  bool lets_in(const FolderIdentity& folder, FolderKind kind);

 private:
  struct IdentityHash {
    std::size_t operator()(const FolderIdentity& identity) const;
  };

  struct Entered {
    FolderIdentity folder;
    FolderKind kind;
  };

  std::vector<Entered> entered_;  // outermost first
  int links_entered_ = 0;         // of entered_
  std::unordered_map<FolderIdentity, int, IdentityHash> links_followed_;
};

}  // namespace corvane
