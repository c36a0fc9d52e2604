#include "tests/support/golden_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "tests/support/source_folder.h"

namespace corvane::test {
namespace {

std::string without_blanks_around(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string::npos ? ""
                                    : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::vector<std::vector<std::string>> golden_rows(const std::string& name) {
  std::vector<std::vector<std::string>> rows;
  std::ifstream file(source_folder() / name);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.starts_with("//")) continue;
    std::istringstream fields(line);
    auto& row = rows.emplace_back();
    for (std::string field; std::getline(fields, field, '|');) {
      row.push_back(without_blanks_around(field));
    }
  }
  EXPECT_FALSE(rows.empty()) << name;
  return rows;
}

}  // namespace corvane::test
