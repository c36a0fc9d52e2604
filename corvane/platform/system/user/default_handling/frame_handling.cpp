// The default handling of what lies around a window's client area.
#include "corvane/platform/system/user/default_handling/default_handlers.h"
#include "corvane/platform/system/user/frames/frame_painting.h"
#include "corvane/platform/system/user/frames/window_frame.h"
#include "corvane/platform/system/user/scroll_bars/scroll_bars.h"

namespace corvane::system {

// Both forms of the message begin with the rectangle that becomes the client area.
LRESULT default_nc_calc_size(const SentMessage& sent) {
  auto* rect = reinterpret_cast<RECT*>(sent.lparam);
  if (rect != nullptr) leave_room_for_frame(*find(sent.window), *rect);
  return 0;
}

LRESULT default_nc_hit_test(const SentMessage& sent) {
  const Window& window = *find(sent.window);
  const POINT point{GET_X_LPARAM(sent.lparam), GET_Y_LPARAM(sent.lparam)};
  const RECT client = client_on_screen(window);
  if (PtInRect(&client, point)) return HTCLIENT;
  const POINT inside{point.x - client.left, point.y - client.top};
  const RECT vertical = bar_rect(window, ScrollAxis::vertical);
  if (PtInRect(&vertical, inside)) return HTVSCROLL;
  const RECT horizontal = bar_rect(window, ScrollAxis::horizontal);
  if (PtInRect(&horizontal, inside)) return HTHSCROLL;
  return frame_layout(window).hit(frame_point(window, point));
}

LRESULT default_nc_paint(const SentMessage& sent) {
  paint_frame(*find(sent.window));
  return 0;
}

// An lParam of -1 asks for no drawing.
LRESULT default_nc_activate(const SentMessage& sent) {
  Window& window = *find(sent.window);
  window.frame_active = sent.wparam != 0;
  if (sent.lparam != -1) paint_frame(window);
  return TRUE;
}

namespace {

// Null for what is not a side or a corner.
LPCWSTR sizing_cursor(int hit_code) {
  switch (hit_code) {
    case HTLEFT:
    case HTRIGHT:
      return IDC_SIZEWE;
    case HTTOP:
    case HTBOTTOM:
      return IDC_SIZENS;
    case HTTOPLEFT:
    case HTBOTTOMRIGHT:
      return IDC_SIZENWSE;
    case HTTOPRIGHT:
    case HTBOTTOMLEFT:
      return IDC_SIZENESW;
    default:
      return nullptr;
  }
}

}  // namespace

// A parent decides about its children's cursor, but not where they are sized.
LRESULT default_set_cursor(const SentMessage& sent) {
  const int code = static_cast<SHORT>(LOWORD(static_cast<DWORD_PTR>(sent.lparam)));
  const bool own = reinterpret_cast<HWND>(sent.wparam) == sent.window;
  const LPCWSTR sizing = own ? sizing_cursor(code) : nullptr;
  if (sizing != nullptr) {
    SetCursor(LoadCursorW(nullptr, sizing));
    return TRUE;
  }
  if (give_to_parent(sent) != 0) return TRUE;
  const Window* found = find(sent.window);
  if (found == nullptr || !own) return FALSE;
  if (code == HTCLIENT && found->window_class->cursor != nullptr) {
    SetCursor(found->window_class->cursor);
  } else if (code > HTCLIENT) {
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
  }
  return FALSE;
}

}  // namespace corvane::system
