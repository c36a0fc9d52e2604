#pragma once
// Input methods of the desktop are at work only while a window edits text: in some modes they take
// every key for themselves.
#include <optional>

#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// The window edits text whenever it has the focus; `caret` (client coordinates) says where.
// Nothing: it does no longer.
void set_text_caret(Window& window, std::optional<RECT> caret);

// Tells the display what the window with the focus wants, if that has changed.
void update_text_input(System& state);

}  // namespace corvane::system
