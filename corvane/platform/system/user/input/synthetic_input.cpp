// SendInput, SetCursorPos and the cursor.
#include <algorithm>

#include "corvane/platform/geometry.h"
#include "corvane/platform/system/user/input/input_routing.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

constexpr int kAbsoluteRange = 65536;

POINT inside_screen(const System& state, std::int64_t x, std::int64_t y) {
  return {corvane::clamp_coordinate(x, 0, std::max(state.frame.width() - 1, 0)),
          corvane::clamp_coordinate(y, 0, std::max(state.frame.height() - 1, 0))};
}

void push_mouse(System& state, const MOUSEINPUT& input) {
  const POINT pointer = state.input.pointer;
  if ((input.dwFlags & MOUSEEVENTF_MOVE) != 0) {
    const bool absolute = (input.dwFlags & MOUSEEVENTF_ABSOLUTE) != 0;
    const std::int64_t x = absolute ? std::int64_t{input.dx} * state.frame.width() / kAbsoluteRange
                                    : std::int64_t{pointer.x} + input.dx;
    const std::int64_t y = absolute ? std::int64_t{input.dy} * state.frame.height() / kAbsoluteRange
                                    : std::int64_t{pointer.y} + input.dy;
    push_move(state, inside_screen(state, x, y));
  }
  struct Button {
    DWORD flag;
    int button;
    bool down;
  };
  constexpr Button kButtons[] = {
      {MOUSEEVENTF_LEFTDOWN, VK_LBUTTON, true},   {MOUSEEVENTF_LEFTUP, VK_LBUTTON, false},
      {MOUSEEVENTF_RIGHTDOWN, VK_RBUTTON, true},  {MOUSEEVENTF_RIGHTUP, VK_RBUTTON, false},
      {MOUSEEVENTF_MIDDLEDOWN, VK_MBUTTON, true}, {MOUSEEVENTF_MIDDLEUP, VK_MBUTTON, false},
  };
  InputEvent event;
  event.position = state.input.pointer;
  event.kind = InputKind::mouse_button;
  for (const Button& row : kButtons) {
    if ((input.dwFlags & row.flag) == 0) continue;
    event.button = row.button;
    event.down = row.down;
    push_input(state, event);
  }
  if ((input.dwFlags & MOUSEEVENTF_WHEEL) != 0) {
    event.kind = InputKind::mouse_wheel;
    event.wheel = static_cast<int>(input.mouseData);
    push_input(state, event);
  }
}

void push_key(System& state, const KEYBDINPUT& input) {
  InputEvent event;
  event.down = (input.dwFlags & KEYEVENTF_KEYUP) == 0;
  if ((input.dwFlags & KEYEVENTF_UNICODE) != 0) {
    if (!event.down) return;
    event.kind = InputKind::text;
    event.text.assign(1, static_cast<wchar_t>(input.wScan));
  } else {
    event.kind = InputKind::key;
    event.virtual_key = input.wVk & 0xFF;
    event.repeat = event.down && state.input.keys_now[static_cast<std::size_t>(event.virtual_key)];
  }
  push_input(state, event);
}

}  // namespace

UINT SendInput(UINT count, LPINPUT inputs, int size) {
  System* state = corvane::system::system();
  if (state == nullptr || inputs == nullptr || size != static_cast<int>(sizeof(INPUT))) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  for (UINT i = 0; i < count; ++i) {
    if (inputs[i].type == INPUT_MOUSE) push_mouse(*state, inputs[i].mi);
    if (inputs[i].type == INPUT_KEYBOARD) push_key(*state, inputs[i].ki);
  }
  return count;
}

BOOL SetCursorPos(int x, int y) {
  System* state = corvane::system::system();
  if (state == nullptr) return FALSE;
  const POINT point = inside_screen(*state, x, y);
  state->display->warp_pointer(point);
  push_move(*state, point);
  return TRUE;
}

BOOL GetCursorPos(LPPOINT point) {
  System* state = corvane::system::system();
  if (state == nullptr || point == nullptr) return FALSE;
  *point = state->input.pointer;
  return TRUE;
}

}  // namespace corvane_system
