#include "apps/capture/first_picture.h"

#include <algorithm>

#include "apps/capture/picture_folder.h"
#include "corvane/platform/base_services/system_paths.h"

namespace capture {
namespace {

constexpr std::size_t kMaxAttempts = 20;  // at pictures that cannot be opened

}  // namespace

FirstPicture find_first_picture(const std::wstring& library, const std::stop_token& stop) {
  FirstPicture first{first_folder_with_pictures(library, stop), nullptr};
  const std::optional<FolderEntries> entries = read_folder(first.folder);
  if (first.folder.empty() || !entries) return first;
  const std::size_t attempts = std::min(entries->pictures.size(), kMaxAttempts);
  for (std::size_t i = 0; i < attempts && first.picture == nullptr; ++i) {
    const std::wstring path = path_in(first.folder, entries->pictures[i]);
    first.picture = CPicture::Open(corvane::native_path(path).string());
  }
  return first;
}

}  // namespace capture
