#include "corvane/platform/system/user/messages/post_message.h"

#include "corvane/platform/system/user/system_registry.h"

namespace corvane::system {

MessageQueue::Posted post(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  System* state = system();
  if (state == nullptr) return MessageQueue::Posted::no_window;
  return state->queue.post(make_message(*state, window, message, wparam, lparam));
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

BOOL PostMessageW(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  using Posted = MessageQueue::Posted;
  Posted done = post(window, message, wparam, lparam);
  if (done == Posted::no_window && window != nullptr) {
    // A window of another thread, or of another system of this one.
    const System* state = corvane::system::system();
    const MSG posted = state == nullptr ? MSG{window, message, wparam, lparam, 0, {}}
                                        : make_message(*state, window, message, wparam, lparam);
    done = post_from_any_thread(posted);
  }
  if (done == Posted::yes) return TRUE;
  SetLastError(done == Posted::full ? ERROR_NOT_ENOUGH_QUOTA : ERROR_INVALID_WINDOW_HANDLE);
  return FALSE;
}

void PostQuitMessage(int exit_code) {
  if (System* state = corvane::system::system()) state->queue.post_quit(exit_code);
}

}  // namespace corvane_system
