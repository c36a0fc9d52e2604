#pragma once
// From a raw input event to the message that its window retrieves.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Set in the lParam of a key message whose character arrives as text of its own, so that
// TranslateMessage makes none.
constexpr LPARAM kTextFollows = LPARAM{1} << 25;

// Takes an event from a display or SendInput: updates the present state of keys and pointer,
// coalesces moves, keeps the event until it is retrieved.
void push_input(System& state, const InputEvent& event);
// Fetches what the display has.
void poll_display(System& state);
// Gives the oldest event its target: sends what comes before the message (hit test, activation,
// cursor) and appends the message to state.input.routed. False when there is no event.
bool route_next_event(System& state);

void route_mouse(System& state, const InputEvent& event);
void route_wheel(System& state, const InputEvent& event);
void route_key(System& state, const InputEvent& event);
void route_text(System& state, const InputEvent& event);

// Appends a message for retrieval with the present time and pointer position.
void append_routed(System& state, HWND window, UINT message, WPARAM wparam, LPARAM lparam);
WPARAM mouse_keys(const System& state);  // MK_ flags
// Tells a window that asked by TrackMouseEvent that the pointer left it.
void check_leave(System& state, HWND pointer_window);
// A changed size of the display: windows that filled the screen fill it again.
void resize_screen(System& state, SIZE size);
void close_requested(System& state);

}  // namespace corvane::system
