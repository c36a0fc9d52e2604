#include "tests/support/source_folder.h"

#include <fstream>
#include <iterator>

namespace corvane::test {

std::filesystem::path source_folder() { return CORVANE_SOURCE_DIR; }

std::string source_text(const std::filesystem::path& path) {
  std::ifstream file(source_folder() / path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace corvane::test
