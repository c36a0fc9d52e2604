#pragma once
#include <string_view>

#include "corvane/platform/platform.h"

namespace capture {

// Puts the text on the clipboard, in the name of the window. False when it cannot be had.
bool copy_text(HWND window, std::wstring_view text);

}  // namespace capture
