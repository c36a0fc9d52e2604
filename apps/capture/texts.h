#pragma once
// Small helpers for the texts that the program shows.
#include <string>

#include "corvane/platform/framework/c_string.h"

namespace capture {

// UTF-8 bytes as a wide text; of others each as one character.
corvane::CString wide(const std::string& utf8);

}  // namespace capture
