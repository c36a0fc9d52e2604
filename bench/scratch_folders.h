#pragma once
// Folders and files to measure on, in a temporary folder that goes with everything in it.
#include <string>

namespace corvane::bench {

// Throws std::system_error when something cannot be made.
class ScratchFolders {
 public:
  // Below TMPDIR; without it in memory, where making takes seconds instead of a minute, or else in
  // the system's folder for temporary files.
  ScratchFolders();
  ScratchFolders(const ScratchFolders&) = delete;
  ScratchFolders& operator=(const ScratchFolders&) = delete;
  ~ScratchFolders();

  const std::string& path() const { return path_; }

  struct Library {
    int years;
    int albums;  // in each year
    int files;   // in each year and in each album
    int folders() const { return years * (albums + 1); }
  };
  void make_library(const std::string& name, const Library& library) const;
  // One folder with so many sub-folders, which are empty.
  void make_crowd(const std::string& name, int folders) const;

 private:
  std::string path_;
};

}  // namespace corvane::bench
