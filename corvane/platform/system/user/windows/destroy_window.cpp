#include "corvane/platform/system/user/windows/destroy_window.h"

#include <algorithm>
#include <cassert>
#include <exception>

#include "corvane/platform/system/user/input/activation.h"
#include "corvane/platform/system/user/input/drop_routing.h"
#include "corvane/platform/system/user/input/input_routing.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/windows/show_window.h"
#include "corvane/platform/system/user/windows/z_order.h"

namespace corvane::system {
namespace {

// The steps of an end that is to be complete: what a handler throws waits until all are done.
class Steps {
 public:
  template <typename Step>
  void run(const Step& step) {
    try {
      step();
    } catch (...) {
      if (thrown_ == nullptr) thrown_ = std::current_exception();
    }
  }
  void rethrow() const {
    if (thrown_ != nullptr) std::rethrow_exception(thrown_);
  }

 private:
  std::exception_ptr thrown_;
};

std::vector<HWND> living_children_of(HWND window) {
  const Window* found = find(window);
  return found == nullptr ? std::vector<HWND>() : children_of(*found);
}

void destroy_owned_windows(HWND window, Steps& steps) {
  const System& state = *system();
  const Window* found = find(window);
  if (found == nullptr) return;
  for (HWND handle : owned_windows(state, *found)) {
    steps.run([handle] {
      if (find(handle) != nullptr) DestroyWindow(handle);
    });
  }
}

void hide_before_destruction(HWND window) {
  Window* found = find(window);
  if (found == nullptr || (found->style & WS_VISIBLE) == 0) return;
  if (found->is_child()) send(window, WM_SHOWWINDOW, FALSE, 0);
  found = find(window);
  if (found == nullptr) return;
  const UINT flags = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW;
  WINDOWPOS position{window,          nullptr, found->frame.left, found->frame.top, found->width(),
                     found->height(), flags};
  const bool tell = shown_on_screen(*found);
  if (tell) send(window, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&position));
  make_hidden(window);
  position.flags |= SWP_NOCLIENTMOVE | SWP_NOCLIENTSIZE;
  if (tell) send(window, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position));
}

void release_focus_of(HWND window) {
  System& state = *system();
  Window* found = state.find(window);
  Window* focus = state.find(state.input.focus);
  if (found == nullptr || focus == nullptr) return;
  if (focus == found) {
    const bool to_parent = found->is_child() && can_take_focus(*found->parent);
    change_focus(to_parent ? found->parent->handle : nullptr);
  } else if (is_descendant(*found, *focus)) {
    state.input.focus = nullptr;
  }
}

void send_destroy(HWND window, Steps& steps) {
  if (Window* found = find(window)) found->destroying = true;
  steps.run([window] { render_promised_formats(window); });
  steps.run([window] { send(window, WM_DESTROY); });
  for (HWND child : living_children_of(window)) send_destroy(child, steps);
}

void finish_with_children(HWND window, Steps& steps) {
  for (HWND child : living_children_of(window)) finish_with_children(child, steps);
  steps.run([window] {
    if (find(window) != nullptr) finish_destruction(window);
  });
}

void notify_of_end(HWND window) {
  Window* found = find(window);
  if (found == nullptr || !found->is_child()) return;
  const WPARAM what = MAKEWPARAM(WM_DESTROY, static_cast<DWORD_PTR>(GetDlgCtrlID(window)));
  notify_parents(window, what, [window](HWND) { return reinterpret_cast<LPARAM>(window); });
}

void forget_input(System& state, HWND window) {
  InputState& input = state.input;
  forget_drops(input, window);
  std::erase_if(input.routed, [window](const MSG& message) { return message.hwnd == window; });
  if (input.capture == window) {
    state.display->set_capture(false);
    push_move(state, input.pointer);
  }
  for (HWND* slot : {&input.capture, &input.focus, &input.active, &input.active_before,
                     &input.tracked_for_leave, &input.pointer_window, &input.last_press.window}) {
    if (*slot == window) *slot = nullptr;
  }
}

// Sends nothing.
void forget_record(System& state, HWND window) {
  for (HWND child : living_children_of(window)) forget_record(state, child);
  Window* found = state.find(window);
  assert(found->children.empty());
  if (shown_on_screen(*found)) state.frame_damage.unite(frame_on_screen(*found));
  state.timers.remove_window(window);
  state.queue.remove_window(window);
  forget_input(state, window);
  unlink(state, *found);
  state.windows.erase(window);
}

}  // namespace

void finish_destruction(HWND window) {
  Steps steps;
  steps.run([window] { send(window, WM_NCDESTROY); });
  forget_window(window);
  steps.rethrow();
}

void forget_window(HWND window) {
  System& state = *system();
  Steps steps;
  for (HWND child : living_children_of(window)) steps.run([child] { forget_window(child); });
  // The owner of a promise that is wanted now may throw, or end this window.
  steps.run([&] { forget_clipboard_window(state, window); });
  if (state.find(window) != nullptr) forget_record(state, window);
  steps.rethrow();
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

BOOL DestroyWindow(HWND window) {
  Window* found = checked(window);
  if (found == nullptr) return FALSE;
  if (found->parent == nullptr || found->destroying) {
    SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
  }
  found->destroying = true;
  Steps steps;
  steps.run([window] { notify_of_end(window); });
  steps.run([window] { hide_before_destruction(window); });
  destroy_owned_windows(window, steps);
  steps.run([window] { activate_next_after(window); });
  steps.run([window] { release_focus_of(window); });
  send_destroy(window, steps);
  finish_with_children(window, steps);
  steps.rethrow();
  return TRUE;
}

BOOL IsWindow(HWND window) { return find(window) != nullptr ? TRUE : FALSE; }

}  // namespace corvane_system
