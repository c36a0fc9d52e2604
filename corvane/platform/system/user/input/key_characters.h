#pragma once

namespace corvane::system {

struct KeyModifiers {
  bool shift = false;
  bool control = false;
};

// The character that a key makes on a US keyboard, 0 for none. Used for synthetic key presses;
// a display with a keyboard layout of its own delivers text instead.
wchar_t key_character(int virtual_key, KeyModifiers modifiers);

}  // namespace corvane::system
