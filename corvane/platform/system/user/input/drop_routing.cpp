#include "corvane/platform/system/user/input/drop_routing.h"

#include "corvane/platform/system/shell/dropped_files.h"
#include "corvane/platform/system/user/input/input_routing.h"

namespace corvane::system {
namespace {

bool takes_files(const Window& window) { return (window.ex_style & WS_EX_ACCEPTFILES) != 0; }

}  // namespace

void route_drop(System& state, const InputEvent& event) {
  const Window* window = state.find(WindowFromPoint(event.position));
  while (window != nullptr && !takes_files(*window)) {
    window = window->is_child() ? window->parent : nullptr;
  }
  if (window == nullptr) return;
  const RECT client = client_on_screen(*window);
  const bool outside = PtInRect(&client, event.position) == FALSE;
  const POINT inside{event.position.x - client.left, event.position.y - client.top};
  HDROP const drop = make_drop(event.files, outside ? event.position : inside, outside);
  if (drop == nullptr) return;
  append_routed(state, window->handle, WM_DROPFILES, reinterpret_cast<WPARAM>(drop), 0);
}

void forget_drops(InputState& input, HWND window) {
  for (const MSG& message : input.routed) {
    if (message.hwnd == window && message.message == WM_DROPFILES) {
      DragFinish(reinterpret_cast<HDROP>(message.wParam));
    }
  }
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

void DragAcceptFiles(HWND window, BOOL accept) {
  const LONG_PTR style = GetWindowLongPtrW(window, GWL_EXSTYLE);
  constexpr LONG_PTR kAccepts = WS_EX_ACCEPTFILES;
  SetWindowLongPtrW(window, GWL_EXSTYLE, accept != FALSE ? style | kAccepts : style & ~kAccepts);
}

}  // namespace corvane_system
