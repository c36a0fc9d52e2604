#include "tests/layers/support/layer_test.h"

#include <iterator>

namespace corvane_tests {

using corvane::system::HeadlessDisplay;

Desktop::Desktop(SIZE size) : Desktop(std::make_unique<HeadlessDisplay>(size)) {}

Desktop::Desktop(std::unique_ptr<HeadlessDisplay> display)
    : display_(*display), windows_(std::move(display)) {}

void Desktop::pump() {
  MSG message{};
  for (int left = 5000; ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
    if (--left == 0) {
      ADD_FAILURE() << "the queue never becomes empty";
      return;
    }
    if (corvane::PreTranslateInput(&message)) continue;
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

void Desktop::send_button(DWORD flags, int distance) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  input.mi.mouseData = static_cast<DWORD>(distance);
  ::SendInput(1, &input, sizeof(input));
}

void Desktop::move_to(int x, int y) {
  ::SetCursorPos(x, y);
  pump();
}

void Desktop::press(int x, int y) {
  move_to(x, y);
  send_button(MOUSEEVENTF_LEFTDOWN);
  pump();
}

void Desktop::queue_release() { send_button(MOUSEEVENTF_LEFTUP); }

void Desktop::release() {
  queue_release();
  pump();
  display_.advance(1000);  // the next press begins no double click
}

void Desktop::click(int x, int y) {
  press(x, y);
  release();
}

void Desktop::double_click(int x, int y) {
  press(x, y);
  queue_release();
  pump();
  click(x, y);
}

void Desktop::wheel(int x, int y, int distance) {
  move_to(x, y);
  send_button(MOUSEEVENTF_WHEEL, distance);
  pump();
}

void Desktop::drag(POINT from, POINT to) {
  press(from.x, from.y);
  move_to((from.x + to.x) / 2, (from.y + to.y) / 2);
  move_to(to.x, to.y);
  release();
}

void Desktop::key(int virtual_key) {
  INPUT inputs[2] = {};
  for (INPUT& input : inputs) {
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(virtual_key);
  }
  inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
  ::SendInput(static_cast<UINT>(std::size(inputs)), inputs, sizeof(INPUT));
  pump();
}

COLORREF Desktop::pixel(int x, int y) {
  return corvane::system::color_of(windows_.frame().at(x, y)) & 0xFFFFFF;
}

void LayerTest::SetUp() {
  ASSERT_TRUE(host_.open(host_place));
  desktop_.app().m_pMainWnd = &host_;
  desktop_.pump();
}

RECT window_rect(HWND window) {
  RECT rect{};
  ::GetWindowRect(window, &rect);
  return rect;
}

RECT client_rect(HWND window) {
  RECT rect{};
  ::GetClientRect(window, &rect);
  return rect;
}

}  // namespace corvane_tests
