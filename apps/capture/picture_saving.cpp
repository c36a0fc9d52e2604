#include "apps/capture/picture_saving.h"

#include <cerrno>

#include "corvane/platform/system/shell/new_file.h"
#include "corvane/platform/system/shell/wide_path.h"

namespace capture {
namespace {

constexpr int kMaxNumber = 100000;

}  // namespace

SavedPart save_numbered(const std::wstring& folder, const std::wstring& picture_name,
                        const std::vector<std::uint8_t>& png) {
  using Placed = corvane::system::NewFile::Placed;
  corvane::system::NewFile file(corvane::system::file_system_path(folder));
  if (!file.write(png.data(), png.size())) return {{}, errno};
  const std::size_t dot = picture_name.rfind(L'.');
  std::wstring stem = dot == 0 ? picture_name : picture_name.substr(0, dot);
  for (int number = 1; number < kMaxNumber;) {
    std::wstring name = stem + L"_" + std::to_wstring(number) + L".png";
    std::string bytes;
    if (!corvane::system::append_bytes(bytes, name, '_')) return {{}, EINVAL};
    const Placed placed = file.place(bytes);
    if (placed == Placed::yes) return {std::move(name), 0};
    if (placed == Placed::name_taken) {
      ++number;
    } else if (errno == ENAMETOOLONG && stem.size() > 1) {
      stem.pop_back();
      number = 1;
    } else {
      return {{}, errno};
    }
  }
  return {{}, EEXIST};
}

corvane::CString save_error_text(int error, const CLook& look) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
      return look.text(Text::disk_full);
    case EACCES:
    case EPERM:
    case EROFS:
      return look.text(Text::no_permission);
    case ENOMEM:
      return look.text(Text::memory_short);
    case ENOENT:
    case ENOTDIR:
      return look.text(Text::folder_missing);
    default:
      return look.text(Text::other_error, {std::to_wstring(error).c_str()});
  }
}

}  // namespace capture
