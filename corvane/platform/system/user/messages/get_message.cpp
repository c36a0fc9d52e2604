#include "corvane/platform/system/user/messages/get_message.h"

#include <algorithm>

#include "corvane/platform/system/user/input/input_routing.h"
#include "corvane/platform/system/user/input/text_input.h"
#include "corvane/platform/system/user/painting/painting.h"
#include "corvane/platform/system/user/painting/presenting.h"

namespace corvane::system {
namespace {

// Draws the frames that come before it. A handler that has its frame drawn again and again must not
// keep the program from its messages: each window gets one turn.
Window* next_to_paint_itself(System& state, HWND within) {
  Window* window = next_to_paint(state, within);
  for (std::size_t left = state.windows.size(); left > 0 && window != nullptr; --left) {
    if (!frame_pending(*window)) return window;
    paint_pending_frame(window->handle);
    window = next_to_paint(state, within);
  }
  return window != nullptr && window->needs_paint ? window : nullptr;
}

}  // namespace

bool MessageFilter::matches(const System& state, const MSG& message) const {
  const bool any_number = first == 0 && last == 0;
  if (!any_number && (message.message < first || message.message > last)) return false;
  if (window == nullptr) return true;
  if (window == reinterpret_cast<HWND>(LONG_PTR{-1})) return message.hwnd == nullptr;
  if (message.hwnd == window) return true;
  auto above = state.windows.find(window);
  auto below = state.windows.find(message.hwnd);
  return above != state.windows.end() && below != state.windows.end() &&
         is_descendant(*above->second, *below->second);
}

std::optional<MSG> take_posted(System& state, const MessageFilter& filter, bool remove) {
  return state.queue.take([&](const MSG& message) { return filter.matches(state, message); },
                          remove);
}

std::optional<MSG> take_input(System& state, const MessageFilter& filter, bool remove) {
  auto& routed = state.input.routed;
  do {
    auto it = std::find_if(routed.begin(), routed.end(),
                           [&](const MSG& message) { return filter.matches(state, message); });
    if (it == routed.end()) continue;
    MSG found = *it;
    if (remove) routed.erase(it);
    return found;
  } while (route_next_event(state));
  return std::nullopt;
}

std::optional<MSG> take_paint(System& state, const MessageFilter& filter) {
  const bool thread_messages_only = filter.window == reinterpret_cast<HWND>(LONG_PTR{-1});
  Window* window = thread_messages_only ? nullptr : next_to_paint_itself(state, filter.window);
  if (window == nullptr) return std::nullopt;
  MSG message = make_message(state, window->handle, WM_PAINT, 0, 0);
  if (!filter.matches(state, message)) return std::nullopt;
  return message;
}

std::optional<MSG> take_timer(System& state, const MessageFilter& filter, bool remove) {
  auto as_message = [&](const Timer& timer) {
    return make_message(state, timer.window, WM_TIMER, timer.id,
                        reinterpret_cast<LPARAM>(timer.procedure));
  };
  auto due = state.timers.take_due(
      state.now(), [&](const Timer& timer) { return filter.matches(state, as_message(timer)); },
      remove);
  if (!due) return std::nullopt;
  return as_message(*due);
}

std::optional<MSG> next_message(System& state, const MessageFilter& filter, bool remove) {
  advance_cursor(state);
  update_text_input(state);
  present_if_late(state);
  if (auto message = take_posted(state, filter, remove)) return message;
  poll_display(state);
  if (auto message = take_input(state, filter, remove)) return message;
  // Routing input may have posted something, which comes before WM_QUIT.
  if (auto message = take_posted(state, filter, remove)) return message;
  if (auto code = state.queue.take_quit(remove)) {
    return make_message(state, nullptr, WM_QUIT, static_cast<WPARAM>(*code), 0);
  }
  if (auto message = take_paint(state, filter)) return message;
  return take_timer(state, filter, remove);
}

std::optional<MSG> retrieve(System& state, const MessageFilter& filter, bool remove) {
  auto message = next_message(state, filter, remove);
  if (message && remove) state.last_message = *message;
  return message;
}

std::optional<std::uint64_t> next_due(System& state) {
  const auto timer = state.timers.next_due();
  const auto cursor = next_cursor_step(state);
  return timer && cursor ? std::min(*timer, *cursor) : timer ? timer : cursor;
}

bool sleep_until_work(System& state, std::optional<std::uint64_t> deadline) {
  update_text_input(state);
  present_now(state);
  std::optional<std::uint64_t> wake_up = next_due(state);
  if (deadline) wake_up = std::min(wake_up.value_or(*deadline), *deadline);
  return state.display->wait(wake_up);
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

BOOL GetMessageW(LPMSG message, HWND window, UINT first, UINT last) {
  System* state = corvane::system::system();
  if (state == nullptr || message == nullptr) return -1;
  const bool thread_messages_only = window == reinterpret_cast<HWND>(LONG_PTR{-1});
  const MessageFilter filter{window, first, last};
  for (bool awake = true;; awake = sleep_until_work(*state)) {
    if (window != nullptr && !thread_messages_only && checked(window) == nullptr) return -1;
    if (auto found = retrieve(*state, filter, true)) {
      *message = *found;
      return found->message != WM_QUIT ? TRUE : FALSE;
    }
    if (!awake) return -1;
  }
}

BOOL PeekMessageW(LPMSG message, HWND window, UINT first, UINT last, UINT remove) {
  System* state = corvane::system::system();
  if (state == nullptr || message == nullptr) return FALSE;
  auto found = retrieve(*state, {window, first, last}, (remove & PM_REMOVE) != 0);
  if (!found) {
    present_now(*state);
    return FALSE;
  }
  *message = *found;
  return TRUE;
}

BOOL WaitMessage() {
  System* state = corvane::system::system();
  if (state == nullptr) return FALSE;
  while (!retrieve(*state, {}, false)) {
    if (!sleep_until_work(*state)) return FALSE;
  }
  return TRUE;
}

}  // namespace corvane_system
