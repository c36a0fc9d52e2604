#pragma once
// Reads the notation of expected message sequences and compares it with what was recorded.
#include <string>
#include <string_view>
#include <vector>

#include "tests/platform/conformance/support/message_recorder.h"

namespace corvane::conformance {

std::vector<LogLine> read_pattern(std::string_view text);
// The pattern's words must begin the line; see the notation in message_recorder.h.
bool line_matches(const std::string& pattern, const std::string& line);
std::string write_log(const std::vector<LogLine>& lines);

}  // namespace corvane::conformance
