#include "corvane/platform/system/display/sdl/clipboard_watch.h"

#include <SDL_syswm.h>
#include <X11/Xlib.h>
#include <X11/extensions/Xfixes.h>

namespace corvane::system {

void ClipboardWatch::start(SDL_Window* window) {
  SDL_SysWMinfo info;
  SDL_VERSION(&info.version);
  if (!SDL_GetWindowWMInfo(window, &info) || info.subsystem != SDL_SYSWM_X11) return;
  Display* const server = info.info.x11.display;
  int first_event = 0;
  int first_error = 0;
  int major = XFIXES_MAJOR;
  int minor = XFIXES_MINOR;
  if (!XFixesQueryExtension(server, &first_event, &first_error)) return;
  XFixesQueryVersion(server, &major, &minor);
  XFixesSelectSelectionInput(
      server, DefaultRootWindow(server), XInternAtom(server, "CLIPBOARD", False),
      XFixesSetSelectionOwnerNotifyMask | XFixesSelectionWindowDestroyNotifyMask |
          XFixesSelectionClientCloseNotifyMask);
  SDL_EventState(SDL_SYSWMEVENT, SDL_ENABLE);
  notice_ = first_event + XFixesSelectionNotify;
}

bool ClipboardWatch::tells_of_change(const SDL_Event& event) const {
  if (event.type == SDL_CLIPBOARDUPDATE) return true;
  return event.type == SDL_SYSWMEVENT && notice_ >= 0 &&
         event.syswm.msg->msg.x11.event.type == notice_;
}

}  // namespace corvane::system
