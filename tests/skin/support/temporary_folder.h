#pragma once
// A folder of the test's own, with what is in it removed at the end.
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/framework/c_string.h"

namespace corvane::test {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    path_ = std::filesystem::temp_directory_path() /
            ("corvane_test_" + std::to_string(std::random_device{}()));
    std::filesystem::create_directories(path_);
  }
  ~TemporaryFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  CString wide() const { return wide_path_of(path_); }

  // Writes a file, and the folders to it; returns its path.
  std::string write(const std::string& name, std::string_view contents) const {
    const auto file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << contents;
    return file.string();
  }

 private:
  std::filesystem::path path_;
};

}  // namespace corvane::test
