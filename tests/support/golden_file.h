#pragma once
// Tables beside the tests: what goes in, and what is expected to come out.
#include <string>
#include <vector>

namespace corvane::test {

// All of a file, named from the sources' folder. The test fails when there is nothing.
std::string golden_text(const std::string& name);

// The rows of a file, named from the sources' folder: fields between bars, without the blanks
// around them. Empty lines and those that begin with // do not count. The test fails when there are
// none.
std::vector<std::vector<std::string>> golden_rows(const std::string& name);

// The whole numbers in a field, between blanks.
std::vector<int> numbers_of(const std::string& field);

}  // namespace corvane::test
