#include <fcntl.h>

#include <cerrno>
#include <string>
#include <string_view>

#include "corvane/platform/system/shell/file_facts.h"
#include "corvane/platform/system/shell/open_path.h"
#include "corvane/platform/system/shell/wide_path.h"

namespace corvane_system {
namespace {

using corvane::system::FileDescriptor;
using corvane::system::open_path;

std::string_view without_last_separators(std::string_view path) {
  while (path.size() > 1 && path.back() == '/') path.remove_suffix(1);
  return path;
}

std::string_view folder_of(std::string_view path) {
  path = without_last_separators(path);
  const std::size_t slash = path.rfind('/');
  if (slash == path.npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

std::string_view name_of(std::string_view path) {
  path = without_last_separators(path);
  return path.substr(path.rfind('/') + 1);
}

DWORD why_not_found(std::string_view path, int error) {
  if (error != ENOENT || open_path(folder_of(path), O_PATH | O_DIRECTORY)) {
    return corvane::system::file_error(error);
  }
  return ERROR_PATH_NOT_FOUND;
}

// The file or folder behind the path; without it, the last error is set.
FileDescriptor locate(LPCWSTR wide, std::string& path, int flags) {
  path = wide != nullptr ? corvane::system::file_system_path(wide) : std::string();
  FileDescriptor found;
  if (!path.empty()) found = open_path(path, O_PATH | flags);
  const int error = errno;
  if (!found) SetLastError(path.empty() ? ERROR_PATH_NOT_FOUND : why_not_found(path, error));
  return found;
}

}  // namespace

DWORD GetFileAttributesW(LPCWSTR wide) {
  std::string path;
  const FileDescriptor found = locate(wide, path, O_NOFOLLOW);
  struct statx status;
  if (!found) return INVALID_FILE_ATTRIBUTES;
  if (statx(found.number(), "", AT_EMPTY_PATH, STATX_BASIC_STATS, &status) != 0) {
    SetLastError(corvane::system::file_error(errno));
    return INVALID_FILE_ATTRIBUTES;
  }
  const bool to_folder =
      S_ISLNK(status.stx_mode) && static_cast<bool>(open_path(path, O_PATH | O_DIRECTORY));
  return corvane::system::facts_of(status, name_of(path), to_folder).attributes;
}

BOOL PathFileExistsW(LPCWSTR wide) {
  std::string path;
  return static_cast<bool>(locate(wide, path, 0)) ? TRUE : FALSE;
}

}  // namespace corvane_system
