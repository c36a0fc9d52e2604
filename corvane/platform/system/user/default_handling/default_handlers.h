#pragma once
// What DefWindowProcW does, one function for each message, in files by idea. Each begins with a
// window that is there and has a parent; any message it sends may end that window.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

struct SentMessage {
  HWND window;
  UINT number;
  WPARAM wparam;
  LPARAM lparam;
};

// --- The window's text and icons
LRESULT default_nc_create(const SentMessage& sent);
LRESULT default_set_text(const SentMessage& sent);
LRESULT default_get_text(const SentMessage& sent);
LRESULT default_get_text_length(const SentMessage& sent);
LRESULT default_get_icon(const SentMessage& sent);
LRESULT default_set_icon(const SentMessage& sent);

// --- The frame around the client area
LRESULT default_nc_calc_size(const SentMessage& sent);
LRESULT default_nc_hit_test(const SentMessage& sent);
LRESULT default_nc_paint(const SentMessage& sent);
LRESULT default_nc_activate(const SentMessage& sent);
LRESULT default_set_cursor(const SentMessage& sent);

// --- Presses on the frame, and what they command
LRESULT default_nc_press(const SentMessage& sent);
LRESULT default_nc_double_click(const SentMessage& sent);
LRESULT default_system_command(const SentMessage& sent);
LRESULT default_close(const SentMessage& sent);

// --- Place and painting
LRESULT default_position_changing(const SentMessage& sent);
LRESULT default_position_changed(const SentMessage& sent);
LRESULT default_erase(const SentMessage& sent);
LRESULT default_paint(const SentMessage& sent);
LRESULT default_control_color(const SentMessage& sent);  // WM_CTLCOLOR...
LRESULT default_set_redraw(const SentMessage& sent);

// --- Activation, mouse and keys
LRESULT default_activate(const SentMessage& sent);
LRESULT default_mouse_activate(const SentMessage& sent);
LRESULT default_right_release(const SentMessage& sent);
LRESULT default_system_key_down(const SentMessage& sent);
LRESULT default_system_key_up(const SentMessage& sent);
LRESULT default_cancel_mode(const SentMessage& sent);

// A child gives the message to its parent and takes over the answer; 0 for other windows.
LRESULT give_to_parent(const SentMessage& sent);

}  // namespace corvane::system
