#include "tests/support/desktop.h"

#include <stdexcept>

namespace corvane::test {

bool Desktop::pump() {
  bool goes_on = true;
  MSG message{};
  for (int left = 5000; ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0; --left) {
    if (left == 0) throw std::runtime_error("the queue never becomes empty");
    if (message.message == WM_QUIT) goes_on = false;
    if (filter_ && filter_(&message)) continue;
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
  return goes_on;
}

void Desktop::send_mouse(DWORD flags, int data) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  input.mi.mouseData = static_cast<DWORD>(data);
  if (::SendInput(1, &input, sizeof(input)) != 1) throw std::runtime_error("no mouse input");
}

void Desktop::send_key(int virtual_key, bool down) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(virtual_key);
  input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
  if (::SendInput(1, &input, sizeof(input)) != 1) throw std::runtime_error("no keyboard input");
}

void Desktop::move_to(int x, int y) {
  ::SetCursorPos(x, y);
  pump();
}

void Desktop::press(DWORD flag) {
  send_mouse(flag);
  pump();
}

void Desktop::press_at(int x, int y) {
  move_to(x, y);
  press();
}

void Desktop::release_at(int x, int y) {
  move_to(x, y);
  release();
}

void Desktop::wheel(int distance) {
  send_mouse(MOUSEEVENTF_WHEEL, distance);
  pump();
}

void Desktop::wheel_at(int x, int y, int distance) {
  move_to(x, y);
  wheel(distance);
}

void Desktop::key_down(int virtual_key) {
  send_key(virtual_key, true);
  pump();
}

void Desktop::key_up(int virtual_key) {
  send_key(virtual_key, false);
  pump();
}

void Desktop::key(int virtual_key) {
  send_key(virtual_key, true);
  send_key(virtual_key, false);
  pump();
}

void Desktop::click(int x, int y) {
  press_at(x, y);
  release();
  pause();
}

void Desktop::double_click(int x, int y) {
  press_at(x, y);
  release();
  press();
  release();
  pause();
}

void Desktop::drag(POINT from, POINT to, int steps) {
  press_at(from.x, from.y);
  for (int i = 1; i <= steps; ++i) {
    move_to(from.x + (to.x - from.x) * i / steps, from.y + (to.y - from.y) * i / steps);
  }
  release();
  pause();
}

}  // namespace corvane::test
