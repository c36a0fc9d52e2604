#include "corvane/platform/system/user/input/keyboard_routing.h"

#include "corvane/platform/system/user/input/input_routing.h"
#include "corvane/platform/system/user/input/key_characters.h"
#include "corvane/platform/system/user/messages/post_message.h"

namespace corvane::system {
namespace {

// Set in the lParam of a key message whose character arrives as text of its own, so that
// TranslateMessage makes none.
constexpr LPARAM kTextFollows = LPARAM{1} << 25;
constexpr LPARAM kWasDown = LPARAM{1} << 30;
constexpr LPARAM kReleased = LPARAM{1} << 31;
constexpr LPARAM kAltDown = LPARAM{1} << 29;

bool alt_down(const System& state) { return state.input.keys_retrieved[VK_MENU]; }

LPARAM key_lparam(const System& state, const InputEvent& event, bool was_down) {
  LPARAM value = 1;
  if (was_down) value |= kWasDown;
  if (!event.down) value |= kWasDown | kReleased;
  if (!event.makes_char) value |= kTextFollows;
  if (alt_down(state)) value |= kAltDown;
  return value;
}

}  // namespace

bool remember_key(System& state, const InputEvent& event) {
  const auto slot = static_cast<std::size_t>(event.virtual_key & 0xFF);
  const bool was_down = state.input.keys_retrieved[slot];
  state.input.keys_retrieved[slot] = event.down;
  if (event.down && !was_down) state.input.keys_toggled[slot] = !state.input.keys_toggled[slot];
  return was_down;
}

void route_key(System& state, const InputEvent& event) {
  const bool was_down = remember_key(state, event);
  const bool menu_key = event.virtual_key == VK_MENU || event.virtual_key == VK_F10;
  // Alt that was held for another key goes up like any key.
  const bool held_for_another = !event.down && event.virtual_key == VK_MENU &&
                                state.input.menu_key != VK_MENU && state.input.focus != nullptr;
  if (event.down) state.input.menu_key = menu_key ? event.virtual_key : 0;
  const bool system_key =
      !held_for_another && (state.input.focus == nullptr || alt_down(state) || menu_key);
  HWND target = state.input.focus != nullptr ? state.input.focus : state.input.active;
  if (state.find(target) == nullptr) return;
  const UINT message = event.down ? (system_key ? WM_SYSKEYDOWN : WM_KEYDOWN)
                                  : (system_key ? WM_SYSKEYUP : WM_KEYUP);
  append_routed(state, target, message, static_cast<WPARAM>(event.virtual_key & 0xFF),
                key_lparam(state, event, was_down));
}

void route_text(System& state, const InputEvent& event) {
  HWND target = state.input.focus != nullptr ? state.input.focus : state.input.active;
  const UINT message = state.input.focus != nullptr ? WM_CHAR : WM_SYSCHAR;
  for (const wchar_t letter : event.text) {
    append_routed(state, target, message, static_cast<WPARAM>(letter), 1);
  }
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

BOOL TranslateMessage(const MSG* message) {
  System* state = corvane::system::system();
  if (state == nullptr || message == nullptr) return FALSE;
  const bool system_key = message->message == WM_SYSKEYDOWN;
  if (message->message != WM_KEYDOWN && !system_key) {
    return message->message == WM_KEYUP || message->message == WM_SYSKEYUP ? TRUE : FALSE;
  }
  if ((message->lParam & kTextFollows) != 0) return TRUE;
  const auto& keys = state->input.keys_retrieved;
  const KeyModifiers modifiers{keys[VK_SHIFT], keys[VK_CONTROL]};
  const wchar_t letter = key_character(static_cast<int>(message->wParam), modifiers);
  if (letter != 0) {
    post(message->hwnd, system_key ? WM_SYSCHAR : WM_CHAR, static_cast<WPARAM>(letter),
         message->lParam);
  }
  return TRUE;
}

SHORT GetKeyState(int virtual_key) {
  System* state = corvane::system::system();
  if (state == nullptr || virtual_key < 0 || virtual_key > 255) return 0;
  const auto key = static_cast<std::size_t>(virtual_key);
  const bool down = state->input.keys_retrieved[key];
  return static_cast<SHORT>((down ? 0x8000 : 0) | (state->input.keys_toggled[key] ? 1 : 0));
}

BOOL GetKeyboardState(BYTE* keys) {
  const System* const state = corvane::system::system();
  if (state == nullptr || keys == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  for (std::size_t key = 0; key < state->input.keys_retrieved.size(); ++key) {
    const int toggled = state->input.keys_toggled[key] ? 0x01 : 0;
    keys[key] = static_cast<BYTE>((state->input.keys_retrieved[key] ? 0x80 : 0) | toggled);
  }
  return TRUE;
}

SHORT GetAsyncKeyState(int virtual_key) {
  System* state = corvane::system::system();
  if (state == nullptr || virtual_key < 0 || virtual_key > 255) return 0;
  const bool down = state->input.keys_now[static_cast<std::size_t>(virtual_key)];
  return static_cast<SHORT>(down ? 0x8000 : 0);
}

}  // namespace corvane_system
