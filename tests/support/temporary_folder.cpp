#include "tests/support/temporary_folder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace corvane::test {
namespace {

namespace fs = std::filesystem;

// Moves folders inside `folder` up to `top`, so that no depth is too deep, and removes the rest.
void flatten(const fs::path& top, const fs::path& folder, int& moved) {
  std::error_code error;
  fs::permissions(folder, fs::perms::owner_all, error);
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
    if (entry.symlink_status(error).type() == fs::file_type::directory)
      fs::rename(entry.path(), top / ("removed " + std::to_string(moved++)), error);
    else
      fs::remove(entry.path(), error);
  }
  fs::remove(folder, error);
}

std::vector<fs::path> entries_of(const fs::path& folder) {
  std::vector<fs::path> entries;
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, error))
    entries.push_back(entry.path());
  return entries;
}

void remove_tree(const fs::path& top) {
  int moved = 0;
  std::error_code error;
  for (int before = -1; before != moved;) {
    before = moved;
    for (const fs::path& entry : entries_of(top)) {
      if (fs::symlink_status(entry, error).type() == fs::file_type::directory)
        flatten(top, entry, moved);
      else
        fs::remove(entry, error);
    }
  }
  fs::remove(top, error);
}

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

TemporaryFolder::~TemporaryFolder() { remove_tree(path_); }

void TemporaryFolder::folder(const std::string& name) const {
  EXPECT_TRUE(fs::create_directory(*this / name)) << name;
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
