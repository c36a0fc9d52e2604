#pragma once
// A folder of the file system that goes with everything in it.
#include <string>

namespace corvane::test {

class TemporaryFolder {
 public:
  // On the disk, or in memory where the system offers that, for a test that makes very much.
  enum class Place { disk, memory };
  explicit TemporaryFolder(Place place = Place::disk);
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  // Bytes, without a slash at the end.
  const std::string& path() const { return path_; }
  std::string operator/(const std::string& name) const { return path_ + "/" + name; }

  // Below the folder; the test fails when it cannot be done.
  void folder(const std::string& name) const;
  void file(const std::string& name, const std::string& content = {}) const;
  void link(const std::string& name, const std::string& target) const;

 private:
  std::string path_;
};

}  // namespace corvane::test
