#include "corvane/platform/system/display/sdl/x_key_text.h"

#include <SDL_syswm.h>
#include <X11/Xutil.h>
#include <xkbcommon/xkbcommon.h>

namespace corvane::system {

std::optional<std::wstring> x_key_text(const SDL_Event& event) {
  if (event.type != SDL_SYSWMEVENT || event.syswm.msg->subsystem != SDL_SYSWM_X11) {
    return std::nullopt;
  }
  XEvent x = event.syswm.msg->msg.x11.event;
  if (x.type != KeyPress) return std::nullopt;
  constexpr unsigned kAlt = Mod1Mask;
  constexpr unsigned kAltGr = Mod5Mask;
  const bool commands = (x.xkey.state & kAltGr) == 0 && (x.xkey.state & (ControlMask | kAlt)) != 0;
  if (commands) return std::wstring();
  KeySym symbol = NoSymbol;
  char unused[8];
  XLookupString(&x.xkey, unused, sizeof(unused), &symbol, nullptr);
  const auto character =
      static_cast<wchar_t>(xkb_keysym_to_utf32(static_cast<xkb_keysym_t>(symbol)));
  constexpr wchar_t kDelete = 0x7F;
  return character < L' ' || character == kDelete ? std::wstring() : std::wstring(1, character);
}

}  // namespace corvane::system
