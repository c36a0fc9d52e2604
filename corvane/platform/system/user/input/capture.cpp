#include "corvane/platform/system/user/input/capture.h"

#include "corvane/platform/system/user/input/input_routing.h"
#include "corvane/platform/system/user/messages/send_message.h"

namespace corvane::system {

void change_capture(System& state, HWND window) {
  HWND old = state.input.capture;
  state.input.capture = window;
  state.display->set_capture(window != nullptr);
  if (old != nullptr && window == nullptr) push_move(state, state.input.pointer);
  if (old != nullptr) send(old, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(window));
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

HWND SetCapture(HWND window) {
  System* state = corvane::system::system();
  if (state == nullptr || (window != nullptr && checked(window) == nullptr)) return nullptr;
  HWND old = state->input.capture;
  change_capture(*state, window);
  return old;
}

BOOL ReleaseCapture() {
  System* state = corvane::system::system();
  if (state == nullptr) return FALSE;
  if (state->input.capture != nullptr) change_capture(*state, nullptr);
  return TRUE;
}

HWND GetCapture() {
  System* state = corvane::system::system();
  return state == nullptr ? nullptr : state->input.capture;
}

}  // namespace corvane_system
