#include "corvane/platform/system/shell/new_file.h"

#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace corvane::system {
namespace {

constexpr std::size_t kBlock = 1 << 20;

std::string folder_of(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

bool write_all(int file, const char* bytes, std::size_t size) {
  while (size > 0) {
    const ssize_t written = write(file, bytes, std::min(size, kBlock));
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes += written;
    size -= static_cast<std::size_t>(written);
  }
  return fsync(file) == 0;
}

// Not every file system knows the rename that refuses to replace; a hard link refuses as well.
bool put_in_place(const std::string& temporary, const std::string& path) {
  if (renameat2(AT_FDCWD, temporary.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0) {
    return true;
  }
  if (errno != EINVAL && errno != ENOSYS) return false;
  if (link(temporary.c_str(), path.c_str()) != 0) return false;
  unlink(temporary.c_str());
  return true;
}

void sync_folder(const std::string& folder) {
  const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return;
  fsync(handle);
  close(handle);
}

}  // namespace

NewFileResult write_new_file(const std::string& path, const void* bytes, std::size_t size) {
  const std::string folder = folder_of(path);
  std::string temporary = folder + "/.corvane-XXXXXX";
  const int file = mkostemp(temporary.data(), O_CLOEXEC);
  if (file < 0) return NewFileResult::failed;
  fchmod(file, 0644);
  bool complete = write_all(file, static_cast<const char*>(bytes), size);
  int error = errno;
  if (close(file) != 0 && complete) {
    complete = false;
    error = errno;
  }
  if (complete && put_in_place(temporary, path)) {
    sync_folder(folder);
    return NewFileResult::written;
  }
  if (complete) error = errno;
  unlink(temporary.c_str());
  errno = error;
  return complete && error == EEXIST ? NewFileResult::exists : NewFileResult::failed;
}

}  // namespace corvane::system
