#include "bench/bare_listing.h"

#include <dirent.h>
#include <fcntl.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace corvane::bench {
namespace {

// Each with its zero at the end.
void list_folders(int folder, std::string& names) {
  alignas(dirent64) static char block[32768];
  for (ssize_t size; (size = getdents64(folder, block, sizeof block)) > 0;) {
    for (ssize_t at = 0; at < size;) {
      const auto* entry = reinterpret_cast<const dirent64*>(block + at);
      at += entry->d_reclen;
      const char* name = entry->d_name;
      if (entry->d_type == DT_DIR && strcmp(name, ".") != 0 && strcmp(name, "..") != 0) {
        names.append(name, strlen(name) + 1);
      }
    }
  }
}

long walk(int parent, const char* name) {
  const int folder = openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  struct stat status;
  if (folder < 0 || fstat(folder, &status) != 0) return 0;
  std::string names;
  list_folders(folder, names);
  long count = 1;
  const char* const end = names.data() + names.size();
  for (const char* one = names.data(); one != end; one += strlen(one) + 1) {
    count += walk(folder, one);
  }
  close(folder);
  return count;
}

}  // namespace

long count_folders(const std::string& path) { return walk(AT_FDCWD, path.c_str()); }

}  // namespace corvane::bench
