#pragma once
// Small helpers for the texts that the program shows.
#include <string>

#include "corvane/platform/framework/c_string.h"

namespace capture {

// UTF-8 bytes (or a byte path's name) as a wide text.
corvane::CString wide(const std::string& utf8);

}  // namespace capture
