#include "corvane/trees/shared/circle_guard.h"

#include <algorithm>
#include <cassert>
#include <string>

#include "corvane/trees/shared/folder_path.h"

namespace corvane {
namespace {

constexpr int kMaxLinksFollowed = 100;  // to one folder, below other links

}  // namespace

std::size_t CircleGuard::IdentityHash::operator()(const FolderIdentity& identity) const {
  return std::hash<std::uint64_t>()(identity.folder * 31 + identity.volume);
}

void CircleGuard::enter_all_above(FolderListing& listing, std::wstring_view path) {
  std::wstring_view above = parent_path(path);
  for (; !above.empty(); above = parent_path(above)) {
    const auto folder = listing.open(std::wstring(above).c_str());
    if (folder != nullptr) enter(folder->identity(), FolderKind::folder);
  }
}

void CircleGuard::enter(const FolderIdentity& folder, FolderKind kind) {
  entered_.push_back({folder, kind});
  if (kind == FolderKind::link) ++links_entered_;
}

void CircleGuard::leave() {
  assert(!entered_.empty() && "leaves what it entered");
  if (entered_.back().kind == FolderKind::link) --links_entered_;
  entered_.pop_back();
}

bool CircleGuard::lets_in(const FolderIdentity& folder, FolderKind kind) {
  if (kind != FolderKind::link) return true;
  const bool leads_back = std::any_of(entered_.rbegin(), entered_.rend(),
                                      [&](const Entered& each) { return each.folder == folder; });
  if (leads_back) return false;
  // Folders full of links to each other would be read in every order that there is.
  return links_entered_ == 0 || ++links_followed_[folder] <= kMaxLinksFollowed;
}

}  // namespace corvane
