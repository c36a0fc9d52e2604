#include "corvane/platform/system/shell/new_file.h"

#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <random>
#include <utility>

namespace corvane::system {
namespace {

constexpr std::size_t kBlock = 1 << 20;
constexpr mode_t kMode = 0666;  // what the user's mask leaves of it
constexpr int kHiddenNames = 100;

void sync_folder(const std::string& folder) {
  const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return;
  fsync(handle);
  close(handle);
}

bool write_all(int file, const char* bytes, std::size_t size) {
  while (size > 0) {
    const ssize_t written = ::write(file, bytes, std::min(size, kBlock));
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes += written;
    size -= static_cast<std::size_t>(written);
  }
  return fsync(file) == 0;
}

}  // namespace

NewFile::NewFile(std::string folder, Until until_placed)
    : folder_(std::move(folder)), until_placed_(until_placed) {}

NewFile::~NewFile() {
  if (file_ >= 0) close(file_);
  if (!hidden_.empty()) unlink(hidden_.c_str());
}

bool NewFile::write(const void* bytes, std::size_t size) {
  return (open_unnamed() || open_hidden()) &&
         write_all(file_, static_cast<const char*>(bytes), size);
}

bool NewFile::open_unnamed() {
  // Such a file gets its name by way of /proc.
  if (until_placed_ == Until::hidden || access("/proc/self/fd", X_OK) != 0) return false;
  file_ = open(folder_.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, kMode);
  return file_ >= 0;
}

std::string NewFile::new_hidden_path() const {
  return folder_ + "/.corvane-" + std::to_string(std::random_device()());
}

bool NewFile::open_hidden() {
  for (int i = 0; i < kHiddenNames; ++i) {
    std::string path = new_hidden_path();
    file_ = open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, kMode);
    if (file_ >= 0) {
      hidden_ = std::move(path);
      return true;
    }
    if (errno != EEXIST) return false;
  }
  return false;
}

NewFile::Placed NewFile::place(const std::string& name) {
  if (file_ < 0) {
    errno = EBADF;
    return Placed::failed;
  }
  const std::string path = folder_ + "/" + name;
  if (!link_as(path)) return errno == EEXIST ? Placed::name_taken : Placed::failed;
  sync_folder(folder_);
  return Placed::yes;
}

// A link never replaces anything, so a file without a name gets a hidden one first.
bool NewFile::replace(const std::string& name) {
  if (file_ < 0) {
    errno = EBADF;
    return false;
  }
  if (hidden_.empty()) {
    const std::string path = new_hidden_path();
    if (!link_as(path)) return false;
    hidden_ = path;
  }
  if (rename(hidden_.c_str(), (folder_ + "/" + name).c_str()) != 0) return false;
  sync_folder(folder_);
  return true;
}

// Not every file system knows the rename that refuses to replace; a hard link refuses as well.
bool NewFile::link_as(const std::string& path) const {
  if (hidden_.empty()) {
    const std::string open_file = "/proc/self/fd/" + std::to_string(file_);
    return linkat(AT_FDCWD, open_file.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
  }
  if (renameat2(AT_FDCWD, hidden_.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0) {
    return true;
  }
  return (errno == EINVAL || errno == ENOSYS) && link(hidden_.c_str(), path.c_str()) == 0;
}

}  // namespace corvane::system
