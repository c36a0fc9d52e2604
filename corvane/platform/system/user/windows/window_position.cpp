// SetWindowPos and MoveWindow.
#include "corvane/platform/system/user/input/activation.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/painting/painting.h"
#include "corvane/platform/system/user/windows/show_window.h"
#include "corvane/platform/system/user/windows/window_geometry.h"
#include "corvane/platform/system/user/windows/z_order.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

bool names_a_place(HWND insert_after) {
  return insert_after == HWND_TOP || insert_after == HWND_BOTTOM || insert_after == HWND_TOPMOST ||
         insert_after == HWND_NOTOPMOST || checked(insert_after) != nullptr;
}

void normalise(const Window& window, WINDOWPOS& position) {
  if ((position.flags & SWP_NOMOVE) != 0) {
    position.x = window.frame.left;
    position.y = window.frame.top;
  }
  if ((position.flags & SWP_NOSIZE) != 0) {
    position.cx = window.width();
    position.cy = window.height();
  }
  position.x = window_coordinate(position.x);
  position.y = window_coordinate(position.y);
  position.cx = window_size(position.cx);
  position.cy = window_size(position.cy);
}

// Adds the flags of what stays as it is.
void mark_unchanged(const Window& window, WINDOWPOS& position) {
  if (position.x == window.frame.left && position.y == window.frame.top) {
    position.flags |= SWP_NOMOVE;
  }
  if (position.cx == window.width() && position.cy == window.height()) {
    position.flags |= SWP_NOSIZE;
  }
  const bool visible = (window.style & WS_VISIBLE) != 0;
  if (visible) position.flags &= ~SWP_SHOWWINDOW;
  if (!visible) position.flags &= ~SWP_HIDEWINDOW;
}

bool reorder(HWND window, WINDOWPOS& position) {
  if ((position.flags & SWP_NOZORDER) != 0) return false;
  System& state = *corvane::system::system();
  Window* found = find(window);
  const bool changed = move_in_z_order(state, *found, position.hwndInsertAfter);
  if (changed && shown_on_screen(*found)) {
    damage_frame(state, *found);
    if (found->surface == nullptr) invalidate_all(*found, true);
  }
  if (found->is_child() && position.hwndInsertAfter == HWND_TOP) {
    send(window, WM_CHILDACTIVATE);
  }
  return changed;
}

void change_geometry(HWND window, WINDOWPOS& position) {
  Move move;
  move.frame = {position.x, position.y, position.x + position.cx, position.y + position.cy};
  move.redraw = (position.flags & SWP_NOREDRAW) == 0;
  move.recalculate = (position.flags & SWP_FRAMECHANGED) != 0;
  const Moved moved = apply_move(window, move, &position);
  position.flags |= moved.client_moved ? 0 : SWP_NOCLIENTMOVE;
  position.flags |= moved.client_resized ? 0 : SWP_NOCLIENTSIZE;
  Window* found = find(window);
  if (found == nullptr) return;
  const bool resized = (position.flags & SWP_NOSIZE) == 0;
  if (resized && move.redraw && !found->is_child() && shown_on_screen(*found)) {
    send_frame_paint(window);
    erase_now(window);
  }
}

bool anything_to_do(const WINDOWPOS& position, bool reordered) {
  constexpr UINT kStays = SWP_NOMOVE | SWP_NOSIZE;
  return reordered || (position.flags & kStays) != kStays ||
         (position.flags & (SWP_FRAMECHANGED | SWP_SHOWWINDOW | SWP_HIDEWINDOW)) != 0;
}

}  // namespace

BOOL SetWindowPos(HWND window, HWND insert_after, int x, int y, int width, int height, UINT flags) {
  Window* found = checked(window);
  if (found == nullptr || found->parent == nullptr) return FALSE;
  if ((flags & SWP_NOZORDER) == 0 && !names_a_place(insert_after)) return FALSE;
  WINDOWPOS position{window, insert_after, x, y, width, height, flags};
  if (!shown_on_screen(*found)) position.flags |= SWP_NOREDRAW;
  normalise(*found, position);
  send(window, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&position));
  found = find(window);
  if (found == nullptr || found->parent == nullptr) return FALSE;
  normalise(*found, position);
  if (found->surface != nullptr && !Surface::can_hold(position.cx, position.cy)) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return FALSE;
  }
  mark_unchanged(*found, position);
  const bool reordered = reorder(window, position);
  if (find(window) == nullptr) return FALSE;
  if (!anything_to_do(position, reordered)) return TRUE;
  if (!reordered) position.flags |= SWP_NOZORDER;
  if ((position.flags & (SWP_NOMOVE | SWP_NOSIZE)) != (SWP_NOMOVE | SWP_NOSIZE) ||
      (position.flags & SWP_FRAMECHANGED) != 0) {
    change_geometry(window, position);
  } else {
    position.flags |= SWP_NOCLIENTMOVE | SWP_NOCLIENTSIZE;
  }
  if (find(window) == nullptr) return FALSE;
  if ((position.flags & SWP_HIDEWINDOW) != 0) make_hidden(window);
  if ((position.flags & SWP_SHOWWINDOW) != 0) make_visible(window);
  if ((flags & (SWP_NOACTIVATE | SWP_NOZORDER | SWP_HIDEWINDOW)) == 0) {
    found = find(window);
    if (found != nullptr && is_top_level(*found) && (found->style & WS_VISIBLE) != 0) {
      activate(window, WA_ACTIVE);
    }
  }
  if (find(window) == nullptr) return FALSE;
  send(window, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position));
  return find(window) != nullptr ? TRUE : FALSE;
}

BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint) {
  const UINT flags = SWP_NOZORDER | SWP_NOACTIVATE | (repaint == FALSE ? SWP_NOREDRAW : 0);
  return SetWindowPos(window, nullptr, x, y, width, height, flags);
}

BOOL BringWindowToTop(HWND window) {
  return SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

}  // namespace corvane_system
