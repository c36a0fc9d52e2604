#include "corvane/trees/shared/circle_guard.h"

#include <algorithm>
#include <string>

#include "corvane/trees/shared/folder_path.h"

namespace corvane {
namespace {

constexpr int kMaxLinksFollowed = 100;  // to one folder

}  // namespace

std::size_t CircleGuard::IdentityHash::operator()(const FolderIdentity& identity) const {
  return std::hash<std::uint64_t>()(identity.folder * 31 + identity.volume);
}

void CircleGuard::enter_all_above(FolderListing& listing, std::wstring_view path) {
  std::wstring_view above = parent_path(path);
  for (; !above.empty(); above = parent_path(above)) {
    const auto folder = listing.open(std::wstring(above).c_str());
    if (folder != nullptr) enter(folder->identity());
  }
}

bool CircleGuard::lets_in(const FolderIdentity& folder, FolderKind kind) {
  const bool leads_back = std::find(entered_.rbegin(), entered_.rend(), folder) != entered_.rend();
  if (leads_back) return false;
  // Folders full of links to each other would be read in every order that there is.
  return kind != FolderKind::link || ++links_followed_[folder] <= kMaxLinksFollowed;
}

}  // namespace corvane
