#include "apps/capture/synthetic_user.h"

#include "corvane/platform/framework/framework.h"
#include "corvane/platform/system/user/window_system.h"

namespace capture {
namespace {

constexpr int kStepsOfADrag = 12;
constexpr unsigned kBetweenClicks = 1000;  // milliseconds; more than a double click takes

void SendMouse(DWORD flags, int data = 0) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  input.mi.mouseData = static_cast<DWORD>(data);
  SendInput(1, &input, sizeof(input));
  HandleWaitingMessages();
}

void PressAndRelease() {
  SendMouse(MOUSEEVENTF_LEFTDOWN);
  SendMouse(MOUSEEVENTF_LEFTUP);
}

}  // namespace

void HandleWaitingMessages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) return;
    if (corvane::PreTranslateInput(&message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void LetTimePass(unsigned milliseconds) {
  auto& display = corvane::system::WindowSystem::current()->display();
  display.wait(display.now() + milliseconds);
  HandleWaitingMessages();
}

void MoveTo(POINT point) {
  SetCursorPos(static_cast<int>(point.x), static_cast<int>(point.y));
  HandleWaitingMessages();
}

void Click(POINT point) {
  MoveTo(point);
  PressAndRelease();
  LetTimePass(kBetweenClicks);
}

void DoubleClick(POINT point) {
  MoveTo(point);
  PressAndRelease();
  PressAndRelease();
  LetTimePass(kBetweenClicks);
}

void Drag(POINT from, POINT to) {
  MoveTo(from);
  SendMouse(MOUSEEVENTF_LEFTDOWN);
  for (int i = 1; i <= kStepsOfADrag; ++i) {
    MoveTo({from.x + (to.x - from.x) * i / kStepsOfADrag,
            from.y + (to.y - from.y) * i / kStepsOfADrag});
  }
  SendMouse(MOUSEEVENTF_LEFTUP);
}

void TurnWheel(POINT point, int notches) {
  MoveTo(point);
  SendMouse(MOUSEEVENTF_WHEEL, notches * WHEEL_DELTA);
}

void PressKey(int virtual_key) {
  for (DWORD flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(virtual_key);
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
  }
  HandleWaitingMessages();
}

}  // namespace capture
