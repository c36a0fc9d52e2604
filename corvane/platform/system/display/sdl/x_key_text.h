#pragma once
#include <SDL.h>

#include <optional>
#include <string>

namespace corvane::system {

// What a press of a key writes by the keyboard's layout, Shift, the locks and AltGr, from X's own
// event (SDL_SYSWMEVENT): while no text is edited SDL gives none. Empty for keys that write
// nothing, such as dead ones, and with Control or Alt; nothing for other events.
std::optional<std::wstring> x_key_text(const SDL_Event& event);

}  // namespace corvane::system
