// The default handling of a window's place, and of its painting.
#include "corvane/platform/system/user/default_handling/default_handlers.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/windows/show_state.h"
#include "corvane/platform/system/user/windows/size_limits.h"
#include "corvane/platform/system/user/windows/window_geometry.h"

namespace corvane::system {

LRESULT default_position_changing(const SentMessage& sent) {
  const Window* found = find(sent.window);
  auto* position = reinterpret_cast<WINDOWPOS*>(sent.lparam);
  if (position == nullptr || (position->flags & SWP_NOSIZE) != 0) return 0;
  if (!has_limits(*found) || (found->style & WS_MINIMIZE) != 0) return 0;
  const SIZE size = within_limits({position->cx, position->cy}, ask_limits(sent.window));
  position->cx = size.cx;
  position->cy = size.cy;
  return 0;
}

LRESULT default_position_changed(const SentMessage& sent) {
  auto* position = reinterpret_cast<const WINDOWPOS*>(sent.lparam);
  if (position == nullptr) return 0;
  const UINT flags = position->flags;
  if ((flags & SWP_NOCLIENTMOVE) == 0) {
    send(sent.window, WM_MOVE, 0, client_position_lparam(*find(sent.window)));
  }
  const Window* found = find(sent.window);
  if (found != nullptr && (flags & SWP_NOCLIENTSIZE) == 0) {
    send(sent.window, WM_SIZE, size_kind(*found), client_size_lparam(*found));
  }
  return 0;
}

LRESULT default_erase(const SentMessage& sent) {
  const Window* found = find(sent.window);
  if (found->window_class->background == nullptr) return 0;
  const RECT area = found->client_area();
  return static_cast<LRESULT>(
      FillRect(reinterpret_cast<HDC>(sent.wparam), &area, found->window_class->background) != 0);
}

LRESULT default_control_color(const SentMessage& sent) {
  const int under = sent.number == WM_CTLCOLOREDIT ? COLOR_WINDOW : COLOR_BTNFACE;
  HDC dc = reinterpret_cast<HDC>(sent.wparam);
  SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
  SetBkColor(dc, GetSysColor(under));
  return reinterpret_cast<LRESULT>(GetSysColorBrush(under));
}

LRESULT default_paint(const SentMessage& sent) {
  PAINTSTRUCT paint;
  BeginPaint(sent.window, &paint);
  EndPaint(sent.window, &paint);
  return 0;
}

LRESULT default_set_redraw(const SentMessage& sent) {
  find(sent.window)->redraw = sent.wparam != 0;
  return 0;
}

}  // namespace corvane::system
