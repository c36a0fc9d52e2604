#include "corvane/platform/system/user/input/mouse_routing.h"

#include <cstdlib>

#include "corvane/platform/system/user/input/activation.h"
#include "corvane/platform/system/user/input/hit_test.h"
#include "corvane/platform/system/user/input/input_routing.h"
#include "corvane/platform/system/user/messages/post_message.h"
#include "corvane/platform/system/user/messages/send_message.h"

namespace corvane::system {
namespace {

constexpr std::uint64_t kDoubleClickTime = 500;

struct ButtonMessages {
  int button;
  UINT down, up, double_click;
};
constexpr ButtonMessages kButtonMessages[] = {
    {VK_LBUTTON, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK},
    {VK_RBUTTON, WM_RBUTTONDOWN, WM_RBUTTONUP, WM_RBUTTONDBLCLK},
    {VK_MBUTTON, WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MBUTTONDBLCLK},
};

// Client messages and their counterparts outside the client area differ by a constant.
constexpr UINT kNonClientOffset = WM_MOUSEMOVE - WM_NCMOUSEMOVE;

UINT message_of(const InputEvent& event) {
  if (event.kind == InputKind::mouse_move) return WM_MOUSEMOVE;
  for (const ButtonMessages& row : kButtonMessages) {
    if (row.button == event.button) return event.down ? row.down : row.up;
  }
  return WM_NULL;
}

UINT double_click_of(int button) {
  for (const ButtonMessages& row : kButtonMessages) {
    if (row.button == button) return row.double_click;
  }
  return WM_NULL;
}

LPARAM in_client(HWND window, POINT screen_point) {
  POINT point = screen_point;
  ScreenToClient(window, &point);
  return packed(point);
}

bool takes_double_clicks(HWND window) {
  Window* found = find(window);
  return found != nullptr && (found->window_class->style & CS_DBLCLKS) != 0;
}

// MK_ flags of the buttons and keys that are down.
WPARAM mouse_keys(const System& state) {
  struct Flag {
    int virtual_key;
    WPARAM flag;
  };
  constexpr Flag kFlags[] = {{VK_LBUTTON, MK_LBUTTON},
                             {VK_RBUTTON, MK_RBUTTON},
                             {VK_MBUTTON, MK_MBUTTON},
                             {VK_SHIFT, MK_SHIFT},
                             {VK_CONTROL, MK_CONTROL}};
  WPARAM keys = 0;
  for (const Flag& row : kFlags) {
    if (state.input.keys_retrieved[static_cast<std::size_t>(row.virtual_key)]) keys |= row.flag;
  }
  return keys;
}

// The second press of a double-click replaces the button-down; a third starts anew. Outside the
// client area it does so in windows of every class.
bool completes_double_click(System& state, HWND window, int hit_code, const InputEvent& event) {
  LastPress& last = state.input.last_press;
  const SIZE box{GetSystemMetrics(SM_CXDOUBLECLK), GetSystemMetrics(SM_CYDOUBLECLK)};
  const bool second = last.window == window && last.button == event.button &&
                      state.now() - last.time <= kDoubleClickTime &&
                      std::abs(event.position.x - last.position.x) <= box.cx / 2 &&
                      std::abs(event.position.y - last.position.y) <= box.cy / 2;
  if (second && (hit_code != HTCLIENT || takes_double_clicks(window))) {
    last = LastPress{};
    return true;
  }
  last = LastPress{window, event.button, event.position, state.now()};
  return false;
}

// Tells parents of the press and activates the top-level window; false discards the press.
bool prepare_press(System& state, const Hit& hit, UINT message, POINT point) {
  HWND window = hit.window;
  notify_parents(window, message, [point](HWND parent) { return in_client(parent, point); });
  Window* found = state.find(window);
  if (found == nullptr) return false;
  HWND top = top_level_of(*found)->handle;
  if (window == top && state.input.active == top) return true;
  const LRESULT answer = send(window, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(top),
                              MAKELPARAM(static_cast<WORD>(hit.code), message));
  const bool activates = answer != MA_NOACTIVATE && answer != MA_NOACTIVATEANDEAT;
  if (activates && state.find(top) != nullptr) activate(top, WA_CLICKACTIVE);
  return answer != MA_ACTIVATEANDEAT && answer != MA_NOACTIVATEANDEAT &&
         state.find(window) != nullptr;
}

void deliver_captured(System& state, const InputEvent& event, UINT message) {
  HWND window = state.input.capture;
  if (event.kind == InputKind::mouse_button && event.down &&
      completes_double_click(state, window, HTCLIENT, event)) {
    message = double_click_of(event.button);
  }
  check_leave(state, window);
  append_routed(state, window, message, mouse_keys(state), in_client(window, event.position));
}

void deliver(System& state, const Hit& hit, UINT message, POINT point) {
  if (hit.code == HTCLIENT) {
    append_routed(state, hit.window, message, mouse_keys(state), in_client(hit.window, point));
  } else if (hit.code > HTCLIENT) {
    append_routed(state, hit.window, message - kNonClientOffset, static_cast<WPARAM>(hit.code),
                  packed(point));
  }
}

}  // namespace

void route_mouse(System& state, const InputEvent& event) {
  UINT message = message_of(event);
  if (message == WM_NULL) return;
  const bool press = event.kind == InputKind::mouse_button && event.down;
  state.input.routed_pointer = event.position;
  if (event.kind == InputKind::mouse_button) {
    state.input.keys_retrieved[static_cast<std::size_t>(event.button & 0xFF)] = event.down;
  }
  // 1. A window that captured the mouse gets everything.
  if (state.find(state.input.capture) != nullptr) {
    deliver_captured(state, event, message);
    return;
  }
  // 2. Otherwise the window at the point: z-order, enabling, colour key, alpha, its own answer.
  const Hit hit = hit_test(event.position, DisabledTops::swallow);
  // 3. The window that the pointer left is told.
  check_leave(state, hit.code == HTCLIENT ? hit.window : nullptr);
  if (hit.window == nullptr) return;
  // 4. A press tells the parents and activates; the window may discard it.
  const bool second = press && completes_double_click(state, hit.window, hit.code, event);
  if (press && !prepare_press(state, hit, message, event.position)) return;
  // 5. The second of two quick presses becomes a double-click.
  if (second) message = double_click_of(event.button);
  // 6. The cursor.
  send(hit.window, WM_SETCURSOR, reinterpret_cast<WPARAM>(hit.window),
       MAKELPARAM(static_cast<WORD>(hit.code), message));
  // 7. The message itself, in the window's client coordinates.
  deliver(state, hit, message, event.position);
}

void route_wheel(System& state, const InputEvent& event) {
  HWND target = state.input.focus;
  if (state.find(state.input.capture) != nullptr) {
    target = state.input.capture;
  } else if (state.parameters.wheel_routing != MOUSEWHEEL_ROUTING_FOCUS) {
    target = hit_test(event.position, DisabledTops::swallow).window;
  }
  const WPARAM keys = MAKEWPARAM(mouse_keys(state), static_cast<WORD>(event.wheel));
  append_routed(state, target, WM_MOUSEWHEEL, keys, packed(event.position));
}

void check_leave(System& state, HWND pointer_window) {
  HWND tracked = state.input.tracked_for_leave;
  state.input.pointer_window = pointer_window;
  if (tracked == nullptr || tracked == pointer_window) return;
  state.input.tracked_for_leave = nullptr;
  post(tracked, WM_MOUSELEAVE, 0, 0);
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

UINT GetDoubleClickTime() { return static_cast<UINT>(kDoubleClickTime); }

BOOL TrackMouseEvent(TRACKMOUSEEVENT* request) {
  System* state = corvane::system::system();
  if (state == nullptr || request == nullptr || request->cbSize != sizeof(TRACKMOUSEEVENT) ||
      checked(request->hwndTrack) == nullptr) {
    return FALSE;
  }
  if ((request->dwFlags & TME_LEAVE) == 0) return TRUE;
  if ((request->dwFlags & TME_CANCEL) != 0) {
    if (state->input.tracked_for_leave == request->hwndTrack) {
      state->input.tracked_for_leave = nullptr;
    }
    return TRUE;
  }
  state->input.tracked_for_leave = request->hwndTrack;
  if (state->input.pointer_window != request->hwndTrack) {
    check_leave(*state, state->input.pointer_window);
  }
  return TRUE;
}

}  // namespace corvane_system
