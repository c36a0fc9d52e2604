#include "corvane/platform/system/shell/folder_search.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include "corvane/platform/system/shell/file_facts.h"
#include "corvane/platform/system/shell/wide_name.h"

namespace corvane::system {

FolderSearch::FolderSearch(FileDescriptor folder, NamePattern pattern, Dots dots)
    : folder_(std::move(folder)),
      pattern_(std::move(pattern)),
      dots_left_(dots == Dots::shown ? 2 : 0) {}

DWORD FolderSearch::next(WIN32_FIND_DATAW& data) {
  const std::lock_guard<std::mutex> guard(lock_);
  while (const char* name = next_name()) {
    if (deliver(name, data)) return ERROR_SUCCESS;
  }
  // A folder that was removed meanwhile has no more entries.
  const int error = reader_.error();
  return error == 0 || error == ENOENT ? ERROR_NO_MORE_FILES : file_error(error);
}

const char* FolderSearch::next_name() {
  if (dots_left_ > 0) return --dots_left_ == 1 ? "." : "..";
  const dirent64* entry = nullptr;
  do {
    entry = reader_.next(folder_.number());
  } while (entry != nullptr && is_dot_or_dot_dot(entry->d_name));
  return entry != nullptr ? entry->d_name : nullptr;
}

bool FolderSearch::deliver(const char* name, WIN32_FIND_DATAW& data) {
  name_.clear();
  append_wide_name(name_, name);
  return pattern_.fits(name_) && find_data(folder_.number(), name, name_, data);
}

bool find_data(int folder, const char* name, std::wstring_view wide, WIN32_FIND_DATAW& data) {
  FileFacts facts;
  if (!facts_of_entry(folder, name, facts)) return false;
  if (wide.size() >= std::size(data.cFileName)) {
    errno = ENAMETOOLONG;
    return false;
  }
  data = {};
  data.dwFileAttributes = facts.attributes;
  data.ftCreationTime = facts.created;
  data.ftLastAccessTime = facts.accessed;
  data.ftLastWriteTime = facts.written;
  data.nFileSizeHigh = static_cast<DWORD>(facts.size >> 32);
  data.nFileSizeLow = static_cast<DWORD>(facts.size);
  if (facts.attributes & FILE_ATTRIBUTE_REPARSE_POINT) data.dwReserved0 = IO_REPARSE_TAG_SYMLINK;
  std::copy(wide.begin(), wide.end(), data.cFileName);
  return true;
}

}  // namespace corvane::system
