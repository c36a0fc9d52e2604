#pragma once
// What the user-interface thread knows of pointer, keys, focus, activation and capture, and the
// input that waits to be retrieved.
#include <array>
#include <deque>
#include <optional>
#include <vector>

#include "corvane/platform/system/display/input_event.h"
#include "corvane/platform/system/user/user_api.h"

namespace corvane::system {

struct LastPress {
  HWND window = nullptr;
  int button = 0;
  POINT position{};
  std::uint64_t time = 0;
};

struct InputState {
  std::deque<InputEvent> events;  // as they came, moves coalesced
  std::deque<MSG> routed;         // already given a target window, not yet retrieved

  POINT pointer{};                         // now
  POINT routed_pointer{};                  // at the last mouse event that was given to a window
  std::array<bool, 256> keys_now{};        // for GetAsyncKeyState
  std::array<bool, 256> keys_retrieved{};  // for GetKeyState
  std::array<bool, 256> keys_toggled{};    // by an odd number of presses
  LastPress last_press;
  int menu_key = 0;  // Alt or F10 went down, and nothing since

  std::optional<RECT> text_caret;  // that the display knows of, screen coordinates
  HWND capture = nullptr;
  HWND focus = nullptr;
  HWND active = nullptr;
  bool application_active = false;
  bool in_background = false;    // another program has the desktop's focus
  HWND active_before = nullptr;  // was active when that began
  HWND tracked_for_leave = nullptr;
  HWND pointer_window = nullptr;  // got the last mouse message
  HCURSOR cursor = nullptr;
};

}  // namespace corvane::system
