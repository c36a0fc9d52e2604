#pragma once
// Text in the clipboard's formats and on the desktop.
#include <optional>
#include <string>

#include "corvane/platform/system/types.h"

namespace corvane::system {

// Whether it is one of the three that hold text.
bool is_text_format(UINT format);
// The text in memory of one of these formats, up to its 0 or its end.
std::string text_in_memory(UINT format, HANDLE memory);
// Memory of one of these formats (CF_LOCALE: of any text), for the caller to free; null when there
// is none.
HANDLE memory_of_text(UINT format, const std::string& text);

std::string with_desktop_line_ends(const std::string& text);   // "\n"
std::string with_platform_line_ends(const std::string& text);  // "\r\n"

}  // namespace corvane::system
