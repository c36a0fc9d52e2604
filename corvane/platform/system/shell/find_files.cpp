#include <fcntl.h>

#include <cerrno>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "corvane/platform/system/handle_table.h"
#include "corvane/platform/system/shell/file_facts.h"
#include "corvane/platform/system/shell/folder_search.h"
#include "corvane/platform/system/shell/open_path.h"
#include "corvane/platform/system/shell/wide_path.h"

namespace corvane_system {
namespace {

using corvane::system::FileDescriptor;
using corvane::system::FolderSearch;
using corvane::system::NamePattern;
using Search = std::shared_ptr<FolderSearch>;  // null after the one entry of a name

// The open searches of the process.
struct Searches {
  std::mutex lock;
  corvane::system::HandleTable<Search> table{corvane::system::next_owner_tag()};
};

Searches& searches() {
  static Searches all;
  return all;
}

HANDLE keep(Search search) {
  Searches& all = searches();
  const std::lock_guard<std::mutex> guard(all.lock);
  const HANDLE handle = all.table.insert_as<HANDLE>(std::move(search));
  if (handle != nullptr) return handle;
  SetLastError(ERROR_NOT_ENOUGH_MEMORY);
  return INVALID_HANDLE_VALUE;
}

std::optional<Search> search_of(HANDLE handle) {
  Searches& all = searches();
  const std::lock_guard<std::mutex> guard(all.lock);
  const Search* const found = all.table.find(handle);
  if (found != nullptr) return *found;
  SetLastError(ERROR_INVALID_HANDLE);
  return std::nullopt;
}

struct PatternParts {
  std::wstring_view folder;  // with the separator behind it; empty: the current folder
  std::wstring_view name;
};

PatternParts split(std::wstring_view pattern) {
  const std::size_t separator = pattern.find_last_of(L"\\/:");
  const std::size_t cut = separator == pattern.npos ? 0 : separator + 1;
  return {pattern.substr(0, cut), pattern.substr(cut)};
}

bool is_drive_root(std::wstring_view folder) {
  if (folder.rfind(L"\\\\?\\", 0) == 0) folder.remove_prefix(4);
  if (folder.size() >= 2 && folder[1] == L':') {
    folder.remove_prefix(2);
  } else if (folder.empty()) {
    return false;
  }
  return folder.find_first_not_of(L"\\/") == folder.npos;
}

HANDLE refused(DWORD error) {
  SetLastError(error);
  return INVALID_HANDLE_VALUE;
}

HANDLE find_one(const FileDescriptor& folder, std::wstring_view name, WIN32_FIND_DATAW& data) {
  std::string bytes;
  const bool possible = !name.empty() && corvane::system::append_bytes(bytes, name, '/');
  if (!possible) return refused(ERROR_FILE_NOT_FOUND);
  if (!corvane::system::find_data(folder.number(), bytes.c_str(), name, data)) {
    return refused(corvane::system::file_error(errno));
  }
  return keep(nullptr);
}

HANDLE find_first(FileDescriptor folder, const PatternParts& parts, WIN32_FIND_DATAW& data) {
  const auto dots =
      is_drive_root(parts.folder) ? FolderSearch::Dots::hidden : FolderSearch::Dots::shown;
  auto search = std::make_shared<FolderSearch>(std::move(folder), NamePattern(parts.name), dots);
  const DWORD error = search->next(data);
  if (error == ERROR_SUCCESS) return keep(std::move(search));
  return refused(error == ERROR_NO_MORE_FILES ? ERROR_FILE_NOT_FOUND : error);
}

}  // namespace

HANDLE FindFirstFileW(LPCWSTR pattern, LPWIN32_FIND_DATAW data) {
  if (pattern == nullptr || data == nullptr) return refused(ERROR_INVALID_PARAMETER);
  const PatternParts parts = split(pattern);
  const std::string path =
      parts.folder.empty() ? "." : corvane::system::file_system_path(parts.folder);
  if (path.empty() || !*pattern) return refused(ERROR_PATH_NOT_FOUND);
  const bool many = NamePattern(parts.name).has_wildcards();
  FileDescriptor folder =
      corvane::system::open_path(path, O_DIRECTORY | O_NONBLOCK | (many ? O_RDONLY : O_PATH));
  if (!folder) {
    return refused(errno == ENOENT ? ERROR_PATH_NOT_FOUND : corvane::system::file_error(errno));
  }
  return many ? find_first(std::move(folder), parts, *data) : find_one(folder, parts.name, *data);
}

BOOL FindNextFileW(HANDLE handle, LPWIN32_FIND_DATAW data) {
  const std::optional<Search> search = search_of(handle);
  if (!search) return FALSE;
  DWORD error = ERROR_INVALID_PARAMETER;
  if (data != nullptr) error = *search ? (*search)->next(*data) : ERROR_NO_MORE_FILES;
  if (error != ERROR_SUCCESS) SetLastError(error);
  return error == ERROR_SUCCESS ? TRUE : FALSE;
}

BOOL FindClose(HANDLE handle) {
  Searches& all = searches();
  std::optional<Search> closed;
  {
    const std::lock_guard<std::mutex> guard(all.lock);
    closed = all.table.remove(handle);
  }
  if (!closed) SetLastError(ERROR_INVALID_HANDLE);
  return closed.has_value() ? TRUE : FALSE;
}

}  // namespace corvane_system
