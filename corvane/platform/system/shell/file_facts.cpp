#include "corvane/platform/system/shell/file_facts.h"

#include <fcntl.h>

#include <cerrno>

namespace corvane::system {
namespace {

FILETIME file_time(const struct statx_timestamp& time) {
  constexpr std::int64_t kSecondsFrom1601To1970 = 11644473600;
  constexpr std::int64_t kStepsPerSecond = 10000000;
  const std::int64_t steps =
      (time.tv_sec + kSecondsFrom1601To1970) * kStepsPerSecond + time.tv_nsec / 100;
  const auto value = static_cast<std::uint64_t>(steps < 0 ? 0 : steps);
  return {static_cast<DWORD>(value), static_cast<DWORD>(value >> 32)};
}

DWORD attributes_of(mode_t mode, bool leads_to_folder) {
  constexpr mode_t kAnyMayWrite = S_IWUSR | S_IWGRP | S_IWOTH;
  if (S_ISDIR(mode)) return FILE_ATTRIBUTE_DIRECTORY;
  if (S_ISLNK(mode)) {
    return FILE_ATTRIBUTE_REPARSE_POINT |
           (leads_to_folder ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_ARCHIVE);
  }
  return FILE_ATTRIBUTE_ARCHIVE | (mode & kAnyMayWrite ? 0 : FILE_ATTRIBUTE_READONLY);
}

}  // namespace

FileFacts facts_of(const struct statx& status, std::string_view name, bool leads_to_folder) {
  FileFacts facts{};
  facts.attributes = attributes_of(status.stx_mode, leads_to_folder);
  if (name.substr(0, 1) == "." && name != "." && name != "..") {
    facts.attributes |= FILE_ATTRIBUTE_HIDDEN;
  }
  const bool birth_known = (status.stx_mask & STATX_BTIME) != 0;
  facts.created = file_time(birth_known ? status.stx_btime : status.stx_mtime);
  facts.accessed = file_time(status.stx_atime);
  facts.written = file_time(status.stx_mtime);
  if (S_ISREG(status.stx_mode)) facts.size = status.stx_size;
  return facts;
}

bool facts_of_entry(int folder, const char* name, FileFacts& facts) {
  struct statx status;
  constexpr unsigned kWanted = STATX_BASIC_STATS | STATX_BTIME;
  if (statx(folder, name, AT_SYMLINK_NOFOLLOW, kWanted, &status) != 0) return false;
  struct stat target;
  const bool leads_to_folder =
      S_ISLNK(status.stx_mode) && fstatat(folder, name, &target, 0) == 0 && S_ISDIR(target.st_mode);
  facts = facts_of(status, name, leads_to_folder);
  return true;
}

DWORD file_error(int error) {
  switch (error) {
    case ENOENT:
      return ERROR_FILE_NOT_FOUND;
    case ENOTDIR:
    case ELOOP:
      return ERROR_PATH_NOT_FOUND;
    case EACCES:
    case EPERM:
      return ERROR_ACCESS_DENIED;
    case EMFILE:
    case ENFILE:
      return ERROR_TOO_MANY_OPEN_FILES;
    case ENOMEM:
      return ERROR_NOT_ENOUGH_MEMORY;
    case ENAMETOOLONG:
      return ERROR_FILENAME_EXCED_RANGE;
    default:
      return ERROR_GEN_FAILURE;
  }
}

}  // namespace corvane::system
