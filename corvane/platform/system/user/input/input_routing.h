#pragma once
// From a raw input event to the message that its window retrieves.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Takes an event from a display or SendInput: updates the present state of keys and pointer,
// coalesces moves, keeps the event until it is retrieved.
void push_input(System& state, const InputEvent& event);
void push_move(System& state, POINT point);
// Fetches what the display has.
void poll_display(System& state);
// Gives the oldest event its target: sends what comes before the message (hit test, activation,
// cursor) and appends the message to state.input.routed. False when there is no event.
bool route_next_event(System& state);
// The same with an event that is in no queue.
void route_event(System& state, const InputEvent& event);
// Appends a message for retrieval with the present time and pointer position.
void append_routed(System& state, HWND window, UINT message, WPARAM wparam, LPARAM lparam);

}  // namespace corvane::system
