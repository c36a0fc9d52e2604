#include "apps/capture/picture_saving.h"

#include <cerrno>
#include <cstring>

#include "apps/capture/picture_folder.h"
#include "apps/capture/texts.h"
#include "corvane/platform/system/shell/new_file.h"
#include "corvane/platform/system/shell/wide_path.h"

namespace capture {
namespace {

constexpr int kMaxNumber = 100000;

}  // namespace

SavedPart save_numbered(const std::wstring& folder, const std::wstring& picture_name,
                        const std::vector<std::uint8_t>& png) {
  using corvane::system::NewFileResult;
  const std::size_t dot = picture_name.rfind(L'.');
  const std::wstring stem = dot == 0 ? picture_name : picture_name.substr(0, dot);
  for (int number = 1; number < kMaxNumber; ++number) {
    const std::wstring name = stem + L"_" + std::to_wstring(number) + L".png";
    const std::string path = corvane::system::file_system_path(path_in(folder, name));
    switch (corvane::system::write_new_file(path, png.data(), png.size())) {
      case NewFileResult::written:
        return {name, 0};
      case NewFileResult::exists:
        continue;
      case NewFileResult::failed:
        return {{}, errno};
    }
  }
  return {{}, EEXIST};
}

corvane::CString save_error_text(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
      return L"磁盘空间不足";
    case EACCES:
    case EPERM:
    case EROFS:
      return L"没有写入权限";
    case ENOENT:
    case ENOTDIR:
      return L"文件夹不存在";
    default:
      return wide(std::strerror(error));
  }
}

}  // namespace capture
