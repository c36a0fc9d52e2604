#pragma once
// A file of expected steps, read and written.
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace corvane::conformance {

struct GoldenStep {
  std::string name;
  std::vector<std::string> comments;
  std::vector<std::string> lines;
};

struct GoldenSection {
  std::vector<std::string> comments;
  std::vector<GoldenStep> steps;
};

struct GoldenFile {
  std::vector<std::string> header;                // comments before the first empty line
  std::map<std::string, GoldenSection> sections;  // by the test's full name
};

GoldenFile read_golden(const std::filesystem::path& path);  // empty when there is none
// Sections in the order of `tests`; others are left out.
void write_golden(const std::filesystem::path& path, const GoldenFile& file,
                  const std::vector<std::string>& tests);
bool golden_matches(const std::vector<std::string>& expected,
                    const std::vector<std::string>& recorded);

}  // namespace corvane::conformance
