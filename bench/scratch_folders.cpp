#include "bench/scratch_folders.h"

#include <dirent.h>
#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

namespace corvane::bench {
namespace {

[[noreturn]] void fail(const std::string& what) {
  throw std::system_error(errno, std::generic_category(), what);
}

// An open folder of the file system.
class Place {
 public:
  explicit Place(const std::string& path) : number_(open(path.c_str(), kFlags)) {
    if (number_ < 0) fail(path);
  }
  Place(const Place& parent, const std::string& name)
      : number_(openat(parent.number_, name.c_str(), kFlags)) {
    if (number_ < 0) fail(name);
  }
  Place(const Place&) = delete;
  Place& operator=(const Place&) = delete;
  ~Place() { close(number_); }

  void make_folder(const std::string& name) const {
    if (mkdirat(number_, name.c_str(), 0700) != 0) fail(name);
  }
  void make_files(int count) const {
    for (int file = 0; file < count; ++file) {
      const std::string name = "picture " + std::to_string(file) + ".jpg";
      if (mknodat(number_, name.c_str(), S_IFREG | 0600, 0) != 0) fail(name);
    }
  }
  // All that is inside.
  void empty() const;

 private:
  static constexpr int kFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NOFOLLOW;
  int number_;
};

void Place::empty() const {
  DIR* const listing = fdopendir(dup(number_));
  if (!listing) fail("listing");
  std::vector<std::string> folders;
  while (const dirent* entry = readdir(listing)) {
    const std::string_view name = entry->d_name;
    if (name == "." || name == "..") continue;
    if (unlinkat(number_, entry->d_name, 0) != 0) folders.emplace_back(name);
  }
  closedir(listing);
  for (const std::string& folder : folders) {
    if (unlinkat(number_, folder.c_str(), AT_REMOVEDIR) == 0) continue;
    Place(*this, folder).empty();
    unlinkat(number_, folder.c_str(), AT_REMOVEDIR);
  }
}

constexpr const char* kMemory = "/dev/shm";

// For a million files and folders.
bool has_room_in_memory() {
  struct statvfs status;
  if (access(kMemory, W_OK) != 0 || statvfs(kMemory, &status) != 0) return false;
  constexpr unsigned long long kBytes = 2ull << 30;
  return status.f_favail > 1000000 && status.f_bavail * status.f_frsize > kBytes;
}

std::filesystem::path place_for_much() {
  const char* const wanted = getenv("TMPDIR");
  const bool free_to_choose = !wanted || !*wanted;
  if (free_to_choose && has_room_in_memory()) return kMemory;
  return std::filesystem::temp_directory_path();
}

std::string album_name(int year, int album) {
  const std::string number = std::to_string(album);
  return album % 4 == 0 ? "相册 " + number : std::to_string(year) + " album " + number;
}

}  // namespace

ScratchFolders::ScratchFolders() : path_((place_for_much() / "corvane-bench-XXXXXX").string()) {
  if (!mkdtemp(path_.data())) fail(path_);
}

ScratchFolders::~ScratchFolders() {
  try {
    Place(path_).empty();
    rmdir(path_.c_str());
  } catch (const std::system_error& error) {
    std::fprintf(stderr, "%s stays behind: %s\n", path_.c_str(), error.what());
  }
}

void ScratchFolders::make_library(const std::string& name, const Library& library) const {
  const Place here(path_);
  here.make_folder(name);
  const Place root(here, name);
  for (int year = 2000; year < 2000 + library.years; ++year) {
    root.make_folder(std::to_string(year));
    const Place albums(root, std::to_string(year));
    albums.make_files(library.files);
    for (int album = 0; album < library.albums; ++album) {
      const std::string album_folder = album_name(year, album);
      albums.make_folder(album_folder);
      Place(albums, album_folder).make_files(library.files);
    }
  }
}

void ScratchFolders::make_crowd(const std::string& name, int folders) const {
  const Place here(path_);
  here.make_folder(name);
  const Place root(here, name);
  for (int album = 0; album < folders; ++album) root.make_folder(album_name(2000, album));
}

}  // namespace corvane::bench
