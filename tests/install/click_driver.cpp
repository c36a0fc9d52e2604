// Runs the example on a display in memory: clicks the middle of its second button, presses beside
// the buttons, and closes it. The example's own main is compiled under the name host_main.
#include <memory>

#include "corvane/platform/platform.h"
#include "corvane/platform/system/display/headless_display.h"
#include "corvane/platform/system/user/window_system.h"

int host_main();

namespace {

constexpr POINT kSecondButton{148, 38};  // in list 100 of the default skin: (104, 8), 88 x 60
constexpr POINT kBesideTheButtons{4, 4};

void click(POINT where) {
  SetCursorPos(where.x, where.y);
  INPUT inputs[2]{};
  inputs[0].type = inputs[1].type = INPUT_MOUSE;
  inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
  inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
  SendInput(2, inputs, sizeof(INPUT));
}

void next_step(HWND, UINT, UINT_PTR, DWORD) {
  static int step = 0;
  switch (++step) {
    case 1:
      return click(kSecondButton);
    case 2:
      return click(kBesideTheButtons);
    default:
      PostMessageW(GetActiveWindow(), WM_CLOSE, 0, 0);
  }
}

}  // namespace

int main() {
  corvane::system::WindowSystem system(
      std::make_unique<corvane::system::HeadlessDisplay>(SIZE{640, 480}));
  SetTimer(nullptr, 0, 100, next_step);
  return host_main();
}
