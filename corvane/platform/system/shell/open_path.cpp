#include "corvane/platform/system/shell/open_path.h"

#include <fcntl.h>
#include <limits.h>

#include <cerrno>
#include <string>

namespace corvane::system {

FileDescriptor open_path(std::string_view path, int flags) {
  FileDescriptor start;
  const auto open_part = [&start](std::string_view part, int part_flags) {
    const int folder = start ? start.number() : AT_FDCWD;
    return FileDescriptor(openat(folder, std::string(part).c_str(), part_flags | O_CLOEXEC));
  };
  while (path.size() >= PATH_MAX) {
    const std::size_t cut = path.rfind('/', PATH_MAX - 2);
    if (cut == std::string_view::npos || cut == 0) {
      errno = ENAMETOOLONG;
      return {};
    }
    start = open_part(path.substr(0, cut), O_PATH | O_DIRECTORY);
    if (!start) return {};
    const std::size_t rest = path.find_first_not_of('/', cut);
    path = rest == std::string_view::npos ? std::string_view(".") : path.substr(rest);
  }
  return open_part(path, flags);
}

}  // namespace corvane::system
