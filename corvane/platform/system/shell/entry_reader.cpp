#include "corvane/platform/system/shell/entry_reader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <cerrno>

namespace corvane::system {

void EntryReader::restart() {
  filled_ = 0;
  at_ = 0;
  error_ = 0;
}

const dirent64* EntryReader::next(int folder) {
  if (at_ >= filled_ && !read_block(folder)) return nullptr;
  const auto* entry = reinterpret_cast<const dirent64*>(block_.data() + at_);
  at_ += entry->d_reclen;
  return entry;
}

bool EntryReader::read_block(int folder) {
  ssize_t size = 0;
  do {
    size = getdents64(folder, block_.data(), block_.size());
  } while (size < 0 && errno == EINTR);
  at_ = 0;
  filled_ = size > 0 ? static_cast<std::size_t>(size) : 0;
  error_ = size < 0 ? errno : 0;
  return size > 0;
}

EntryKind kind_of(int folder, const dirent64& entry) {
  const auto leads_to_folder = [&](int flags) {
    struct stat status;
    return fstatat(folder, entry.d_name, &status, flags) == 0 && S_ISDIR(status.st_mode);
  };
  if (entry.d_type == DT_DIR) return EntryKind::folder;
  if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return EntryKind::other;
  if (entry.d_type == DT_UNKNOWN && leads_to_folder(AT_SYMLINK_NOFOLLOW)) return EntryKind::folder;
  return leads_to_folder(0) ? EntryKind::link_to_folder : EntryKind::other;
}

bool is_dot_or_dot_dot(const char* name) {
  return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

}  // namespace corvane::system
