#include "corvane/platform/system/user/windows/show_window.h"

#include <algorithm>
#include <iterator>

#include "corvane/platform/system/user/input/activation.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/painting/painting.h"
#include "corvane/platform/system/user/windows/show_state.h"
#include "corvane/platform/system/user/windows/window_geometry.h"
#include "corvane/platform/system/user/windows/z_order.h"

namespace corvane::system {
namespace {

// Before the window is shown; nothing: it stays as it is.
using StateChange = bool (*)(HWND window);

struct ShowCommand {
  int command;
  bool activates;
  StateChange change;
};
constexpr ShowCommand kShowCommands[] = {
    {SW_SHOWNORMAL, true, restore_to_normal},
    {SW_SHOWMINIMIZED, true, minimize},
    {SW_SHOWMAXIMIZED, true, maximize},
    {SW_SHOWNOACTIVATE, false, restore_to_normal},
    {SW_SHOW, true, nullptr},
    {SW_MINIMIZE, false, minimize},
    {SW_SHOWMINNOACTIVE, false, minimize},
    {SW_SHOWNA, false, nullptr},
    {SW_RESTORE, true, restore},
    {SW_SHOWDEFAULT, true, restore_to_normal},
    {SW_FORCEMINIMIZE, false, minimize},
};

// An unknown command is SW_SHOW.
const ShowCommand& row_of(int command) {
  const auto* row = std::ranges::find(kShowCommands, command, &ShowCommand::command);
  return row != std::end(kShowCommands) ? *row : row_of(SW_SHOW);
}

bool activates(const Window& window, int command) {
  return is_top_level(window) && (window.ex_style & WS_EX_NOACTIVATE) == 0 &&
         row_of(command).activates;
}

UINT show_flags(const Window& window, int command) {
  UINT flags = SWP_NOSIZE | SWP_NOMOVE | SWP_SHOWWINDOW;
  if (window.is_child()) return flags | SWP_NOZORDER | SWP_NOACTIVATE;
  if (!row_of(command).activates) flags |= SWP_NOACTIVATE;
  if (command == SW_SHOWNOACTIVATE) flags |= SWP_NOZORDER;
  return flags;
}

WINDOWPOS position_of(const Window& window, UINT flags) {
  return {window.handle,   nullptr, window.frame.left, window.frame.top, window.width(),
          window.height(), flags};
}

// Only the style bit changes where a hidden parent keeps the window from being seen.
bool seen_through_parents(const Window& window) {
  return window.parent != nullptr && shown_on_screen(*window.parent);
}

void send_first_size(HWND window) {
  Window* found = find(window);
  if (found == nullptr || !found->first_size_due) return;
  found->first_size_due = false;
  send(window, WM_SIZE, size_kind(*found), client_size_lparam(*found));
  found = find(window);
  if (found != nullptr) send(window, WM_MOVE, 0, client_position_lparam(*found));
}

void show(HWND window, int command) {
  send(window, WM_SHOWWINDOW, TRUE, 0);
  Window* found = find(window);
  if (found == nullptr) return;
  if (!seen_through_parents(*found)) {
    found->style |= WS_VISIBLE;
    return;
  }
  WINDOWPOS position = position_of(*found, show_flags(*found, command));
  send(window, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&position));
  found = find(window);
  if (found == nullptr) return;
  System& state = *system();
  found->style |= WS_VISIBLE;
  if (is_top_level(*found) && (position.flags & SWP_NOZORDER) == 0) raise(state, *found);
  damage_frame(state, *found);
  if (activates(*found, command)) activate(window, WA_ACTIVE);
  make_visible(window);
  found = find(window);
  if (found == nullptr) return;
  position.flags |= SWP_NOCLIENTMOVE | SWP_NOCLIENTSIZE;
  send(window, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position));
  send_first_size(window);
}

// False: the window is gone.
bool change_before_showing(HWND window, int command) {
  const ShowCommand& row = row_of(command);
  if (row.change != nullptr && !row.change(window)) return false;
  if (row.change == minimize && !row.activates) activate_next_after(window);
  return find(window) != nullptr;
}

void leave_hidden(HWND window) {
  System* state = system();
  Window* found = state->find(window);
  if (found == nullptr) return;
  if (is_top_level(*found)) {
    activate_next_after(window);
  } else if (state->input.focus == window) {
    HWND parent = found->parent->handle;
    change_focus(can_take_focus(*found->parent) ? parent : nullptr);
  }
}

void hide(HWND window) {
  send(window, WM_SHOWWINDOW, FALSE, 0);
  Window* found = find(window);
  if (found == nullptr) return;
  if (!seen_through_parents(*found)) {
    found->style &= ~WS_VISIBLE;
    return;
  }
  UINT flags = SWP_NOSIZE | SWP_NOMOVE | SWP_HIDEWINDOW;
  if (found->is_child()) flags |= SWP_NOZORDER | SWP_NOACTIVATE;
  WINDOWPOS position = position_of(*found, flags);
  send(window, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&position));
  make_hidden(window);
  if (find(window) == nullptr) return;
  position.flags |= SWP_NOCLIENTMOVE | SWP_NOCLIENTSIZE;
  send(window, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position));
  leave_hidden(window);
}

}  // namespace

void make_visible(HWND window) {
  Window* found = find(window);
  if (found == nullptr) return;
  found->style |= WS_VISIBLE;
  if (!shown_on_screen(*found)) return;
  damage_frame(*system(), *found);
  invalidate_all(*found, true);
  if (IsRectEmpty(&found->frame)) return;
  send_frame_paint(window);
  erase_now(window);
}

void make_hidden(HWND window) {
  Window* found = find(window);
  if (found == nullptr || (found->style & WS_VISIBLE) == 0) return;
  const bool was_shown = shown_on_screen(*found);
  const RECT area = frame_on_screen(*found);
  found->style &= ~WS_VISIBLE;
  found->update.clear();
  found->needs_paint = false;
  found->needs_erase = false;
  if (!was_shown) return;
  system()->frame_damage.unite(area);
  if (!found->is_child() || found->surface != nullptr || found->parent == nullptr) return;
  HWND parent = found->parent->handle;
  invalidate_uncovered(*found->parent, area);
  erase_now(parent);
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

BOOL ShowWindow(HWND window, int command) {
  Window* found = checked(window);
  if (found == nullptr || found->parent == nullptr) return FALSE;
  const bool was_visible = (found->style & WS_VISIBLE) != 0;
  if (command == SW_HIDE) {
    found->hidden_by_owner = false;
    if (was_visible) hide(window);
  } else if (change_before_showing(window, command)) {
    if (!was_visible) {
      show(window, command);
    } else if (activates(*find(window), command)) {
      activate(window, WA_ACTIVE);
    }
  }
  return was_visible ? TRUE : FALSE;
}

BOOL IsWindowVisible(HWND window) {
  Window* found = checked(window);
  return found != nullptr && found->parent != nullptr && found->redraw && shown_on_screen(*found)
             ? TRUE
             : FALSE;
}

}  // namespace corvane_system
