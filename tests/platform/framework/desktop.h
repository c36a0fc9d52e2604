#pragma once
// A window system in memory for the framework's tests, with input by the platform's own functions.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "corvane/platform/framework/framework.h"
#include "corvane/platform/system/display/headless_display.h"
#include "corvane/platform/system/user/window_system.h"

namespace corvane {

class FrameworkDesktop {
 public:
  FrameworkDesktop() : FrameworkDesktop(std::make_unique<system::HeadlessDisplay>()) {}

  void move_to(int x, int y) { ::SetCursorPos(x, y); }
  void button(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    ::SendInput(1, &input, sizeof input);
  }
  void wheel(int distance) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_WHEEL;
    input.mi.mouseData = static_cast<DWORD>(distance);
    ::SendInput(1, &input, sizeof input);
  }
  void press_key(int key) {
    INPUT inputs[2]{};
    for (INPUT& each : inputs) {
      each.type = INPUT_KEYBOARD;
      each.ki.wVk = static_cast<WORD>(key);
    }
    inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
    ::SendInput(2, inputs, sizeof(INPUT));
  }

  system::HeadlessDisplay& display;
  system::WindowSystem windows;

 private:
  explicit FrameworkDesktop(std::unique_ptr<system::HeadlessDisplay> memory)
      : display(*memory), windows(std::move(memory)) {}
};

// A window that hands every message to a function before it handles it.
class WatchedWnd : public CWnd {
 public:
  using Watch = std::function<void(UINT, WPARAM, LPARAM)>;

  explicit WatchedWnd(Watch watch = {}) : watch_(std::move(watch)) {}

  bool create(HWND parent = nullptr, DWORD style = WS_POPUP | WS_VISIBLE,
              CRect place = CRect(100, 100, 300, 250)) {
    return CreateEx(0, nullptr, L"watched", style, place.left, place.top, place.Width(),
                    place.Height(), parent, nullptr);
  }

  int ends = 0;  // calls of PostNcDestroy

 protected:
  LRESULT WindowProc(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (watch_) watch_(message, wparam, lparam);
    return CWnd::WindowProc(message, wparam, lparam);
  }
  void PostNcDestroy() override { ++ends; }

 private:
  Watch watch_;
};

}  // namespace corvane
