#pragma once
// What the clipboard's functions do to its state.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

void note_change(ClipboardState& clipboard);
// The formats that are made from text, behind the others.
void add_made_formats(ClipboardState& clipboard);
void remove_made_formats(ClipboardState& clipboard);
// Makes it, or has the owner make it, when it is only promised; null when there is none.
HANDLE clipboard_memory(System& state, UINT format);
void tell_listeners(const System& state);
void give_text_to_desktop(System& state);

}  // namespace corvane::system
