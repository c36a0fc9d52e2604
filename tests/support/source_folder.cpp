#include "tests/support/source_folder.h"

namespace corvane::test {

std::filesystem::path source_folder() { return CORVANE_SOURCE_DIR; }

}  // namespace corvane::test
