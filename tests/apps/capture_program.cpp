#include "tests/apps/capture_program.h"

namespace capture {

std::string capture_program() { return CORVANE_CAPTURE; }

}  // namespace capture
