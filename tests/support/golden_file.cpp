#include "tests/support/golden_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
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

std::string golden_text(const std::string& name) {
  std::ifstream file(source_folder() / name, std::ios::binary);
  const std::string text(std::istreambuf_iterator<char>(file), {});
  EXPECT_FALSE(text.empty()) << name;
  return text;
}

std::vector<std::vector<std::string>> golden_rows(const std::string& name) {
  std::vector<std::vector<std::string>> rows;
  std::istringstream file(golden_text(name));
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.starts_with("//")) continue;
    std::istringstream fields(line);
    auto& row = rows.emplace_back();
    for (std::string field; std::getline(fields, field, '|');) {
      row.push_back(without_blanks_around(field));
    }
  }
  return rows;
}

std::vector<int> numbers_of(const std::string& field) {
  std::istringstream in(field);
  return {std::istream_iterator<int>(in), {}};
}

}  // namespace corvane::test
