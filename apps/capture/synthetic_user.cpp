#include "apps/capture/synthetic_user.h"

#include "corvane/platform/framework/framework.h"
#include "corvane/platform/system/user/window_system.h"

namespace capture {
namespace {

constexpr int kStepsOfADrag = 12;
constexpr unsigned kBetweenClicks = 1000;  // milliseconds; more than a double click takes

void send_mouse(DWORD flags, int data = 0) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  input.mi.mouseData = static_cast<DWORD>(data);
  SendInput(1, &input, sizeof(input));
  handle_waiting_messages();
}

void press_and_release() {
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  send_mouse(MOUSEEVENTF_LEFTUP);
}

}  // namespace

void handle_waiting_messages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) return;
    if (corvane::PreTranslateInput(&message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void let_time_pass(unsigned milliseconds) {
  auto& display = corvane::system::WindowSystem::current()->display();
  display.wait(display.now() + milliseconds);
  handle_waiting_messages();
}

void move_to(POINT point) {
  SetCursorPos(static_cast<int>(point.x), static_cast<int>(point.y));
  handle_waiting_messages();
}

void click(POINT point) {
  move_to(point);
  press_and_release();
  let_time_pass(kBetweenClicks);
}

void double_click(POINT point) {
  move_to(point);
  press_and_release();
  press_and_release();
  let_time_pass(kBetweenClicks);
}

void drag(POINT from, POINT to) {
  move_to(from);
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  for (int i = 1; i <= kStepsOfADrag; ++i) {
    move_to({from.x + (to.x - from.x) * i / kStepsOfADrag,
             from.y + (to.y - from.y) * i / kStepsOfADrag});
  }
  send_mouse(MOUSEEVENTF_LEFTUP);
}

void turn_wheel(POINT point, int notches) {
  move_to(point);
  send_mouse(MOUSEEVENTF_WHEEL, notches * WHEEL_DELTA);
}

void press_key(int virtual_key) {
  for (const DWORD flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(virtual_key);
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
  }
  handle_waiting_messages();
}

}  // namespace capture
