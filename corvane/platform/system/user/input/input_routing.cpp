#include "corvane/platform/system/user/input/input_routing.h"

#include <vector>

#include "corvane/platform/system/user/input/activation.h"
#include "corvane/platform/system/user/input/drop_routing.h"
#include "corvane/platform/system/user/input/keyboard_routing.h"
#include "corvane/platform/system/user/input/mouse_routing.h"
#include "corvane/platform/system/user/messages/post_message.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/windows/show_state.h"

namespace corvane::system {
namespace {

std::size_t key_slot(int virtual_key) { return static_cast<std::size_t>(virtual_key & 0xFF); }

void remember_state(System& state, const InputEvent& event) {
  switch (event.kind) {
    case InputKind::mouse_move:
    case InputKind::mouse_wheel:
    case InputKind::drop:
      state.input.pointer = event.position;
      break;
    case InputKind::mouse_button:
      state.input.pointer = event.position;
      state.input.keys_now[key_slot(event.button)] = event.down;
      break;
    case InputKind::key:
      state.input.keys_now[key_slot(event.virtual_key)] = event.down;
      break;
    case InputKind::focus:
      if (!event.down) state.input.keys_now.fill(false);
      // On Wayland only the program with the focus hears of the clipboard.
      state.clipboard.desktop_changed = true;
      break;
    case InputKind::clipboard:
      state.clipboard.desktop_changed = true;
      break;
    default:
      break;
  }
}

void route_focus(System& state, const InputEvent& event) {
  if (event.down) {
    enter_foreground();
    return;
  }
  state.input.keys_retrieved.fill(false);
  if (HWND captured = state.input.capture) send(captured, WM_CANCELMODE);
  leave_foreground();
}

// A changed size of the display: windows that filled the screen fill it again. One that left full
// screen has the work area's size before the display has.
void resize_screen(System& state, SIZE size) {
  if (size.cx <= 0 || size.cy <= 0) return;
  const RECT old = state.desktop->frame;
  const RECT now{0, 0, size.cx, size.cy};
  state.frame_damage.unite(now);  // the display may have lost what it showed
  if (EqualRect(&old, &now)) return;
  state.desktop->frame = now;
  state.desktop->client = now;
  state.frame.resize(size.cx, size.cy);
  std::vector<HWND> filling;
  for (const Window* top : state.desktop->children) {
    if (EqualRect(&top->frame, &old) || EqualRect(&top->frame, &state.work_area)) {
      filling.push_back(top->handle);
    }
  }
  if (!state.full_screen) state.work_area = now;
  for (HWND window : filling) MoveWindow(window, 0, 0, size.cx, size.cy, TRUE);
  fit_to_screen(state);
}

void close_requested(System& state) {
  HWND main = state.input.active;
  if (main == nullptr && !state.desktop->children.empty()) {
    main = state.desktop->children.front()->handle;
  }
  if (main == nullptr) return;
  post(GetAncestor(main, GA_ROOTOWNER), WM_SYSCOMMAND, SC_CLOSE, 0);
}

}  // namespace

void push_input(System& state, const InputEvent& event) {
  remember_state(state, event);
  auto& events = state.input.events;
  const bool coalesces = event.kind == InputKind::mouse_move && !events.empty() &&
                         events.back().kind == InputKind::mouse_move;
  if (coalesces) {
    events.back() = event;
  } else {
    events.push_back(event);
  }
}

void push_move(System& state, POINT point) {
  InputEvent event;
  event.kind = InputKind::mouse_move;
  event.position = point;
  push_input(state, event);
}

void poll_display(System& state) {
  std::vector<InputEvent> arrived;
  state.display->poll(arrived);
  for (const InputEvent& event : arrived) push_input(state, event);
}

void route_event(System& state, const InputEvent& event) {
  switch (event.kind) {
    case InputKind::mouse_move:
    case InputKind::mouse_button:
      route_mouse(state, event);
      break;
    case InputKind::mouse_wheel:
      route_wheel(state, event);
      break;
    case InputKind::mouse_leave:
      check_leave(state, nullptr);
      break;
    case InputKind::key:
      route_key(state, event);
      break;
    case InputKind::text:
      route_text(state, event);
      break;
    case InputKind::resize:
      resize_screen(state, {event.position.x, event.position.y});
      break;
    case InputKind::close:
      close_requested(state);
      break;
    case InputKind::focus:
      route_focus(state, event);
      break;
    case InputKind::drop:
      route_drop(state, event);
      break;
    case InputKind::clipboard:
      desktop_clipboard_changed(state);
      break;
  }
}

bool route_next_event(System& state) {
  if (state.input.events.empty()) return false;
  const InputEvent event = std::move(state.input.events.front());
  state.input.events.pop_front();
  route_event(state, event);
  return true;
}

void append_routed(System& state, HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (state.find(window) == nullptr) return;
  state.input.routed.push_back(make_message(state, window, message, wparam, lparam));
}

}  // namespace corvane::system
