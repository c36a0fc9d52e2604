// The default handling of activation, mouse and keys.
#include "corvane/platform/system/user/default_handling/default_handlers.h"
#include "corvane/platform/system/user/messages/send_message.h"

namespace corvane::system {

LRESULT give_to_parent(const SentMessage& sent) {
  const Window* found = find(sent.window);
  if (found == nullptr || !found->is_child() || found->parent == nullptr) return 0;
  return send(found->parent->handle, sent.number, sent.wparam, sent.lparam);
}

LRESULT default_activate(const SentMessage& sent) {
  const bool activated = LOWORD(sent.wparam) != WA_INACTIVE;
  if (activated && !find(sent.window)->is_child()) SetFocus(sent.window);
  return 0;
}

LRESULT default_mouse_activate(const SentMessage& sent) {
  if (const LRESULT answer = give_to_parent(sent)) return answer;
  const Window* found = find(sent.window);
  const bool never = found != nullptr && (found->ex_style & WS_EX_NOACTIVATE) != 0;
  return never ? MA_NOACTIVATE : MA_ACTIVATE;
}

LRESULT default_right_release(const SentMessage& sent) {
  POINT point{GET_X_LPARAM(sent.lparam), GET_Y_LPARAM(sent.lparam)};
  ClientToScreen(sent.window, &point);
  send(sent.window, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(sent.window),
       MAKELPARAM(static_cast<WORD>(point.x), static_cast<WORD>(point.y)));
  return 0;
}

LRESULT default_system_key_down(const SentMessage& sent) {
  constexpr LPARAM kAltDown = LPARAM{1} << 29;
  if (sent.wparam == VK_F4 && (sent.lparam & kAltDown) != 0) {
    PostMessageW(GetAncestor(sent.window, GA_ROOT), WM_SYSCOMMAND, SC_CLOSE, 0);
  }
  return 0;
}

// F10 and Alt alone open the menu when they go up.
LRESULT default_system_key_up(const SentMessage& sent) {
  const WPARAM key = sent.wparam;
  if (key == 0 || key != static_cast<WPARAM>(system()->input.menu_key)) return 0;
  send(GetAncestor(sent.window, GA_ROOT), WM_SYSCOMMAND, SC_KEYMENU);
  return 0;
}

LRESULT default_cancel_mode(const SentMessage& sent) {
  if (GetCapture() == sent.window) ReleaseCapture();
  return 0;
}

}  // namespace corvane::system
