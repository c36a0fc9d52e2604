// DefWindowProcW: one small function per message.
#include <algorithm>
#include <cwchar>

#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/modal/move_loop.h"
#include "corvane/platform/system/user/painting/painting.h"
#include "corvane/platform/system/user/scroll_bars/scroll_bars.h"
#include "corvane/platform/system/user/scroll_bars/scroll_loop.h"
#include "corvane/platform/system/user/scroll_bars/scroll_painting.h"
#include "corvane/platform/system/user/windows/window_geometry.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

constexpr UINT kCommandBits = 0xFFF0;

struct BarCodes {
  ScrollAxis axis;
  int hit;
  UINT command;
};
constexpr BarCodes kBarCodes[] = {{ScrollAxis::vertical, HTVSCROLL, SC_VSCROLL | HTVSCROLL},
                                  {ScrollAxis::horizontal, HTHSCROLL, SC_HSCROLL | HTHSCROLL}};

LRESULT to_parent(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  Window* found = find(window);
  if (found == nullptr || !found->is_child() || found->parent == nullptr) return 0;
  return send(found->parent->handle, message, wparam, lparam);
}

LRESULT on_set_text(HWND window, LPARAM lparam) {
  Window* found = find(window);
  if (found == nullptr) return FALSE;
  auto* text = reinterpret_cast<LPCWSTR>(lparam);
  found->text = text == nullptr ? L"" : text;
  const bool names_the_program = is_top_level(*found) && found->owner == nullptr;
  if (names_the_program) corvane::system::system()->display->set_title(found->text.c_str());
  return TRUE;
}

LRESULT on_nc_create(HWND window, LPARAM lparam) {
  auto* create = reinterpret_cast<const CREATESTRUCTW*>(lparam);
  if (create != nullptr && create->lpszName != nullptr && !IS_INTRESOURCE(create->lpszName)) {
    on_set_text(window, reinterpret_cast<LPARAM>(create->lpszName));
  }
  return TRUE;
}

LRESULT on_get_text(HWND window, WPARAM wparam, LPARAM lparam) {
  Window* found = find(window);
  auto* buffer = reinterpret_cast<wchar_t*>(lparam);
  if (found == nullptr || buffer == nullptr || wparam == 0) return 0;
  const std::size_t length = std::min<std::size_t>(found->text.size(), wparam - 1);
  found->text.copy(buffer, length);
  buffer[length] = 0;
  return static_cast<LRESULT>(length);
}

// Both forms of the message begin with the rectangle that becomes the client area.
LRESULT on_calculate_size(HWND window, LPARAM lparam) {
  Window* found = find(window);
  auto* rect = reinterpret_cast<RECT*>(lparam);
  if (found != nullptr && rect != nullptr) leave_room_for_bars(*found, *rect);
  return 0;
}

LRESULT on_hit_test(HWND window, LPARAM lparam) {
  Window* found = find(window);
  if (found == nullptr) return HTNOWHERE;
  const POINT point{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
  const RECT client = client_on_screen(*found);
  if (PtInRect(&client, point)) return HTCLIENT;
  const POINT inside{point.x - client.left, point.y - client.top};
  for (const BarCodes& codes : kBarCodes) {
    const RECT bar = bar_rect(*found, codes.axis);
    if (PtInRect(&bar, inside)) return codes.hit;
  }
  const RECT frame = frame_on_screen(*found);
  return PtInRect(&frame, point) ? HTBORDER : HTNOWHERE;
}

LRESULT on_activate(HWND window, WPARAM wparam) {
  Window* found = find(window);
  if (LOWORD(wparam) != WA_INACTIVE && found != nullptr && !found->is_child()) SetFocus(window);
  return 0;
}

LRESULT on_mouse_activate(HWND window, WPARAM wparam, LPARAM lparam) {
  if (const LRESULT answer = to_parent(window, WM_MOUSEACTIVATE, wparam, lparam)) return answer;
  Window* found = find(window);
  const bool never = found != nullptr && (found->ex_style & WS_EX_NOACTIVATE) != 0;
  return never ? MA_NOACTIVATE : MA_ACTIVATE;
}

LRESULT on_set_cursor(HWND window, WPARAM wparam, LPARAM lparam) {
  if (to_parent(window, WM_SETCURSOR, wparam, lparam) != 0) return TRUE;
  Window* found = find(window);
  const bool own = reinterpret_cast<HWND>(wparam) == window;
  if (found == nullptr || !own) return FALSE;
  const int code = static_cast<SHORT>(LOWORD(static_cast<DWORD_PTR>(lparam)));
  if (code == HTCLIENT && found->window_class->cursor != nullptr) {
    SetCursor(found->window_class->cursor);
  } else if (code == HTVSCROLL || code == HTHSCROLL) {
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
  }
  return FALSE;
}

LRESULT on_erase(HWND window, WPARAM wparam) {
  Window* found = find(window);
  if (found == nullptr || found->window_class->background == nullptr) return 0;
  const RECT area = found->client_area();
  return static_cast<LRESULT>(
      FillRect(reinterpret_cast<HDC>(wparam), &area, found->window_class->background) != 0);
}

LRESULT on_paint(HWND window) {
  PAINTSTRUCT paint;
  BeginPaint(window, &paint);
  EndPaint(window, &paint);
  return 0;
}

LRESULT on_position_changing(HWND window, LPARAM lparam) {
  Window* found = find(window);
  auto* position = reinterpret_cast<WINDOWPOS*>(lparam);
  if (found == nullptr || position == nullptr || (position->flags & SWP_NOSIZE) != 0) return 0;
  if (!found->has_caption() && (found->style & WS_THICKFRAME) == 0) return 0;
  const RECT screen = corvane::system::system()->desktop->frame;
  MINMAXINFO info{};
  info.ptMaxSize = {screen.right, screen.bottom};
  info.ptMaxTrackSize = {kMaxWindowSize, kMaxWindowSize};
  send(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
  position->cx = std::max(std::min<int>(position->cx, info.ptMaxTrackSize.x),
                          static_cast<int>(info.ptMinTrackSize.x));
  position->cy = std::max(std::min<int>(position->cy, info.ptMaxTrackSize.y),
                          static_cast<int>(info.ptMinTrackSize.y));
  return 0;
}

LRESULT on_position_changed(HWND window, LPARAM lparam) {
  auto* position = reinterpret_cast<const WINDOWPOS*>(lparam);
  if (position == nullptr) return 0;
  const UINT flags = position->flags;
  Window* found = find(window);
  if (found != nullptr && (flags & SWP_NOCLIENTMOVE) == 0) {
    send(window, WM_MOVE, 0, client_position_lparam(*found));
  }
  found = find(window);
  if (found != nullptr && (flags & SWP_NOCLIENTSIZE) == 0) {
    send(window, WM_SIZE, SIZE_RESTORED, client_size_lparam(*found));
  }
  return 0;
}

LRESULT on_system_command(HWND window, WPARAM wparam, LPARAM lparam) {
  for (const BarCodes& codes : kBarCodes) {
    const POINT press{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
    if (wparam == codes.command) run_scroll_loop(window, codes.axis, press);
  }
  if (wparam == (SC_MOVE | HTCAPTION)) {
    run_move_loop(window);
  } else if ((wparam & kCommandBits) == SC_CLOSE) {
    send(window, WM_CLOSE);
  }
  return 0;
}

// Also the second press of two: whoever presses an arrow quickly means it twice.
LRESULT on_bar_press(HWND window, WPARAM wparam, LPARAM lparam) {
  for (const BarCodes& codes : kBarCodes) {
    if (wparam == static_cast<WPARAM>(codes.hit)) {
      send(window, WM_SYSCOMMAND, codes.command, lparam);
    }
  }
  return 0;
}

LRESULT on_nc_press(HWND window, WPARAM wparam, LPARAM lparam) {
  if (wparam == static_cast<WPARAM>(HTCAPTION)) {
    send(window, WM_SYSCOMMAND, SC_MOVE | HTCAPTION, lparam);
  }
  return on_bar_press(window, wparam, lparam);
}

LRESULT on_nc_paint(HWND window) {
  Window* found = find(window);
  if (found == nullptr) return 0;
  found->bars_due = true;
  if (bars_pending(*found)) paint_bars(*found);
  return 0;
}

LRESULT on_right_release(HWND window, LPARAM lparam) {
  POINT point{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
  ClientToScreen(window, &point);
  send(window, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window),
       MAKELPARAM(static_cast<WORD>(point.x), static_cast<WORD>(point.y)));
  return 0;
}

// F10 and Alt alone open the menu when they go up.
LRESULT on_system_key_up(HWND window, WPARAM key) {
  const System& state = *corvane::system::system();
  if (key == 0 || key != static_cast<WPARAM>(state.input.menu_key)) return 0;
  send(GetAncestor(window, GA_ROOT), WM_SYSCOMMAND, SC_KEYMENU);
  return 0;
}

LRESULT on_system_key_down(HWND window, WPARAM key, LPARAM lparam) {
  constexpr LPARAM kAltDown = LPARAM{1} << 29;
  if (key == VK_F4 && (lparam & kAltDown) != 0) {
    PostMessageW(GetAncestor(window, GA_ROOT), WM_SYSCOMMAND, SC_CLOSE, 0);
  }
  return 0;
}

LRESULT on_set_redraw(HWND window, WPARAM wparam) {
  if (Window* found = find(window)) found->redraw = wparam != 0;
  return 0;
}

LRESULT on_cancel_mode(HWND window) {
  if (GetCapture() == window) ReleaseCapture();
  return 0;
}

LRESULT text_length(HWND window) {
  Window* found = find(window);
  return found == nullptr ? 0 : static_cast<LRESULT>(found->text.size());
}

}  // namespace

LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (checked(window) == nullptr) return 0;
  switch (message) {
    case WM_NCCREATE:
      return on_nc_create(window, lparam);
    case WM_SETTEXT:
      return on_set_text(window, lparam);
    case WM_GETTEXT:
      return on_get_text(window, wparam, lparam);
    case WM_GETTEXTLENGTH:
      return text_length(window);
    case WM_NCCALCSIZE:
      return on_calculate_size(window, lparam);
    case WM_NCHITTEST:
      return on_hit_test(window, lparam);
    case WM_NCACTIVATE:
      return TRUE;
    case WM_ACTIVATE:
      return on_activate(window, wparam);
    case WM_MOUSEACTIVATE:
      return on_mouse_activate(window, wparam, lparam);
    case WM_SETCURSOR:
      return on_set_cursor(window, wparam, lparam);
    case WM_ERASEBKGND:
      return on_erase(window, wparam);
    case WM_PAINT:
      return on_paint(window);
    case WM_WINDOWPOSCHANGING:
      return on_position_changing(window, lparam);
    case WM_WINDOWPOSCHANGED:
      return on_position_changed(window, lparam);
    case WM_SYSCOMMAND:
      return on_system_command(window, wparam, lparam);
    case WM_SYSKEYDOWN:
      return on_system_key_down(window, wparam, lparam);
    case WM_SYSKEYUP:
      return on_system_key_up(window, wparam);
    case WM_NCLBUTTONDOWN:
      return on_nc_press(window, wparam, lparam);
    case WM_NCLBUTTONDBLCLK:
      return on_bar_press(window, wparam, lparam);
    case WM_NCPAINT:
      return on_nc_paint(window);
    case WM_RBUTTONUP:
      return on_right_release(window, lparam);
    case WM_CONTEXTMENU:
    case WM_MOUSEWHEEL:
      return to_parent(window, message, wparam, lparam);
    case WM_SETREDRAW:
      return on_set_redraw(window, wparam);
    case WM_CANCELMODE:
      return on_cancel_mode(window);
    case WM_CLOSE:
      DestroyWindow(window);
      return 0;
    default:
      return 0;
  }
}

}  // namespace corvane_system
