#pragma once
// A folder of the file system that goes with everything in it.
#include <filesystem>
#include <string>
#include <string_view>

#include "corvane/platform/system/shell/wide_path.h"

namespace corvane::test {

class TemporaryFolder {
 public:
  // On the disk, or in memory where the system offers that, for a test that makes very much.
  enum class Place { disk, memory };
  explicit TemporaryFolder(Place place = Place::disk);
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }
  std::wstring wide() const { return system::wide_path(path_.native()); }

  // Below the folder; the test fails when it cannot be done. `folder` and `file` make the folders
  // on the way, too; `file` returns its path.
  void folder(const std::string& name) const;
  std::string file(const std::string& name, std::string_view content = {}) const;
  // So many folders of that name inside each other; no path reaches the innermost ones.
  void chain(const std::string& name, int levels) const;
  void link(const std::string& name, const std::string& target) const;

 private:
  std::filesystem::path path_;
};

}  // namespace corvane::test
