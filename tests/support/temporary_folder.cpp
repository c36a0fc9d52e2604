#include "tests/support/temporary_folder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace corvane::test {
namespace {

namespace fs = std::filesystem;

fs::path parent_folder(TemporaryFolder::Place place) {
  const fs::path memory = "/dev/shm";
  const bool in_memory =
      place == TemporaryFolder::Place::memory && access(memory.c_str(), W_OK) == 0;
  return in_memory ? memory : fs::temp_directory_path();
}

}  // namespace

TemporaryFolder::TemporaryFolder(Place place) {
  std::string pattern = parent_folder(place) / "corvane-test-XXXXXX";
  if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
  path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
  // The commands take what closed folders and any depth hold, which remove_all does not.
  const std::string top = "'" + path_.native() + "'";
  EXPECT_EQ(std::system(("chmod -R u+rwx " + top + " && rm -rf " + top).c_str()), 0);
}

void TemporaryFolder::folder(const std::string& name) const {
  EXPECT_TRUE(fs::create_directories(*this / name)) << name;
}

std::string TemporaryFolder::file(const std::string& name, std::string_view content) const {
  const fs::path path = *this / name;
  fs::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file << content;
  EXPECT_TRUE(file.flush().good()) << name;
  return path;
}

void TemporaryFolder::chain(const std::string& name, int levels) const {
  int at = open(path_.c_str(), O_PATH | O_DIRECTORY);
  for (int level = 0; level < levels; ++level) {
    EXPECT_EQ(mkdirat(at, name.c_str(), 0700), 0) << level;
    const int inner = openat(at, name.c_str(), O_PATH | O_DIRECTORY);
    close(at);
    at = inner;
  }
  close(at);
}

void TemporaryFolder::link(const std::string& name, const std::string& target) const {
  fs::create_symlink(target, *this / name);
}

}  // namespace corvane::test
