#pragma once
#include <SDL.h>

namespace corvane::system {

// The platform's virtual-key code of a key, 0 when it has none.
int virtual_key_of(const SDL_Keysym& key);

// Whether the key, as the layout and the modifiers stand, is one that writes something: its text
// then arrives as an event of its own.
bool writes_text(const SDL_Keysym& key);

// Whether the modifiers make text into commands (Control, Alt; not AltGr).
bool commands(Uint16 modifiers);

}  // namespace corvane::system
