#include "tests/platform/conformance/support/message_names.h"

#include <iterator>
#include <map>
#include <sstream>
#include <vector>

#include "tests/support/rects.h"

namespace corvane::conformance {

namespace {

struct FlagName {
  UINT flag;
  const char* name;
};

#define NAMED(message) \
  { message, #message }

const std::map<UINT, const char*>& names() {
  static const std::map<UINT, const char*> table = {NAMED(WM_CREATE),
                                                    NAMED(WM_DESTROY),
                                                    NAMED(WM_MOVE),
                                                    NAMED(WM_SIZE),
                                                    NAMED(WM_ACTIVATE),
                                                    NAMED(WM_SETFOCUS),
                                                    NAMED(WM_KILLFOCUS),
                                                    NAMED(WM_ENABLE),
                                                    NAMED(WM_SETREDRAW),
                                                    NAMED(WM_SETTEXT),
                                                    NAMED(WM_PAINT),
                                                    NAMED(WM_CLOSE),
                                                    NAMED(WM_ERASEBKGND),
                                                    NAMED(WM_SHOWWINDOW),
                                                    NAMED(WM_ACTIVATEAPP),
                                                    NAMED(WM_CANCELMODE),
                                                    NAMED(WM_SETCURSOR),
                                                    NAMED(WM_MOUSEACTIVATE),
                                                    NAMED(WM_CHILDACTIVATE),
                                                    NAMED(WM_GETMINMAXINFO),
                                                    NAMED(WM_WINDOWPOSCHANGING),
                                                    NAMED(WM_WINDOWPOSCHANGED),
                                                    NAMED(WM_CONTEXTMENU),
                                                    NAMED(WM_STYLECHANGING),
                                                    NAMED(WM_STYLECHANGED),
                                                    NAMED(WM_NCCREATE),
                                                    NAMED(WM_NCDESTROY),
                                                    NAMED(WM_NCCALCSIZE),
                                                    NAMED(WM_NCHITTEST),
                                                    NAMED(WM_NCPAINT),
                                                    NAMED(WM_NCACTIVATE),
                                                    NAMED(WM_NCLBUTTONDOWN),
                                                    NAMED(WM_NCLBUTTONUP),
                                                    NAMED(WM_NCLBUTTONDBLCLK),
                                                    NAMED(WM_KEYDOWN),
                                                    NAMED(WM_KEYUP),
                                                    NAMED(WM_CHAR),
                                                    NAMED(WM_SYSKEYDOWN),
                                                    NAMED(WM_SYSKEYUP),
                                                    NAMED(WM_SYSCHAR),
                                                    NAMED(WM_COMMAND),
                                                    NAMED(WM_SYSCOMMAND),
                                                    NAMED(WM_TIMER),
                                                    NAMED(WM_HSCROLL),
                                                    NAMED(WM_VSCROLL),
                                                    NAMED(WM_MOUSEMOVE),
                                                    NAMED(WM_LBUTTONDOWN),
                                                    NAMED(WM_LBUTTONUP),
                                                    NAMED(WM_LBUTTONDBLCLK),
                                                    NAMED(WM_RBUTTONDOWN),
                                                    NAMED(WM_RBUTTONUP),
                                                    NAMED(WM_RBUTTONDBLCLK),
                                                    NAMED(WM_MBUTTONDOWN),
                                                    NAMED(WM_MBUTTONUP),
                                                    NAMED(WM_MOUSEWHEEL),
                                                    NAMED(WM_PARENTNOTIFY),
                                                    NAMED(WM_CAPTURECHANGED),
                                                    NAMED(WM_MOVING),
                                                    NAMED(WM_ENTERSIZEMOVE),
                                                    NAMED(WM_EXITSIZEMOVE),
                                                    NAMED(WM_MOUSELEAVE)};
  return table;
}

#undef NAMED

std::string flags_text(UINT flags, const std::vector<FlagName>& table) {
  std::string text;
  for (const FlagName& entry : table) {
    if ((flags & entry.flag) != 0) text += (text.empty() ? "" : "|") + std::string(entry.name);
  }
  return text.empty() ? "-" : text;
}

std::string point_text(int x, int y) { return std::to_string(x) + "," + std::to_string(y); }

std::string point_text(LPARAM lparam) {
  return point_text(GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam));
}

std::string size_text(int width, int height) {
  return std::to_string(width) + "x" + std::to_string(height);
}

std::string hexadecimal(WPARAM value) {
  std::ostringstream text;
  text << "0x" << std::hex << std::uppercase << value;
  return text.str();
}

std::string mouse_keys(WPARAM keys) {
  return flags_text(static_cast<UINT>(keys), {{MK_LBUTTON, "LBUTTON"},
                                              {MK_RBUTTON, "RBUTTON"},
                                              {MK_SHIFT, "SHIFT"},
                                              {MK_CONTROL, "CONTROL"},
                                              {MK_MBUTTON, "MBUTTON"}});
}

// Flags first; the numbers that the flags declare unused are left out.
std::string window_position(const WINDOWPOS& position) {
  std::string text = flags_text(position.flags, {{SWP_NOSIZE, "NOSIZE"},
                                                 {SWP_NOMOVE, "NOMOVE"},
                                                 {SWP_NOZORDER, "NOZORDER"},
                                                 {SWP_NOREDRAW, "NOREDRAW"},
                                                 {SWP_NOACTIVATE, "NOACTIVATE"},
                                                 {SWP_FRAMECHANGED, "FRAMECHANGED"},
                                                 {SWP_SHOWWINDOW, "SHOWWINDOW"},
                                                 {SWP_HIDEWINDOW, "HIDEWINDOW"},
                                                 {0x0800, "NOCLIENTSIZE"},
                                                 {0x1000, "NOCLIENTMOVE"}});
  if ((position.flags & SWP_NOMOVE) == 0) text += " " + point_text(position.x, position.y);
  if ((position.flags & SWP_NOSIZE) == 0) text += " " + size_text(position.cx, position.cy);
  return text;
}

std::string parent_notice(WPARAM wparam, LPARAM lparam, const WindowNamer& name_of) {
  const UINT event = LOWORD(wparam);
  if (event == WM_CREATE || event == WM_DESTROY) {
    return message_name(event) + " " + std::to_string(HIWORD(wparam)) + " " +
           name_of(reinterpret_cast<HWND>(lparam));
  }
  return message_name(event) + " " + point_text(lparam);
}

std::string hit_details(WPARAM wparam, LPARAM lparam, const WindowNamer& name_of) {
  const UINT cause = HIWORD(static_cast<DWORD_PTR>(lparam));
  const int code = static_cast<SHORT>(LOWORD(static_cast<DWORD_PTR>(lparam)));
  return name_of(reinterpret_cast<HWND>(wparam)) + " " + std::to_string(code) + " " +
         (cause == 0 ? "0" : message_name(cause));
}

bool carries_pointer(UINT message) {
  return message == WM_NCCREATE || message == WM_CREATE || message == WM_SETTEXT ||
         message == WM_GETMINMAXINFO || message == WM_PAINT || message == WM_ERASEBKGND ||
         message == WM_NCPAINT;
}

std::string plain_details(UINT message, WPARAM wparam, LPARAM lparam) {
  if (carries_pointer(message)) return "";
  return std::to_string(wparam) + " " + std::to_string(lparam);
}

std::string key_or_command_details(UINT message, WPARAM wparam, LPARAM lparam,
                                   const WindowNamer& name_of) {
  if (message == WM_COMMAND) {
    return std::to_string(LOWORD(wparam)) + " " + std::to_string(HIWORD(wparam)) + " " +
           name_of(reinterpret_cast<HWND>(lparam));
  }
  if (message == WM_SYSCOMMAND || (message >= WM_KEYFIRST && message <= WM_KEYLAST)) {
    return hexadecimal(wparam);
  }
  return plain_details(message, wparam, lparam);
}

// The code by its vertical name, the position as the program sees it, the bar's handle if any.
std::string scroll_details(WPARAM wparam, LPARAM lparam) {
  static const char* const kCodes[] = {"LINEUP",   "LINEDOWN",      "PAGEUP",
                                       "PAGEDOWN", "THUMBPOSITION", "THUMBTRACK",
                                       "TOP",      "BOTTOM",        "ENDSCROLL"};
  const UINT code = LOWORD(wparam);
  return (code < std::size(kCodes) ? kCodes[code] : std::to_string(code)) + std::string(" ") +
         std::to_string(HIWORD(wparam)) + (lparam == 0 ? "" : " bar");
}

std::string mouse_details(UINT message, WPARAM wparam, LPARAM lparam, const WindowNamer& name_of) {
  switch (message) {
    case WM_MOUSEWHEEL:
      return std::to_string(GET_WHEEL_DELTA_WPARAM(wparam)) + " " + point_text(lparam) + " " +
             mouse_keys(LOWORD(wparam));
    case WM_NCHITTEST:
      return point_text(lparam);
    case WM_SETCURSOR:
    case WM_MOUSEACTIVATE:
      return hit_details(wparam, lparam, name_of);
    case WM_CONTEXTMENU:
      return name_of(reinterpret_cast<HWND>(wparam)) + " " + point_text(lparam);
    case WM_CAPTURECHANGED:
      return name_of(reinterpret_cast<HWND>(lparam));
    case WM_HSCROLL:
    case WM_VSCROLL:
      return scroll_details(wparam, lparam);
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONUP:
    case WM_NCLBUTTONDBLCLK:
      return std::to_string(wparam) + " " + point_text(lparam);
    case WM_MOVING:
      return test::text_of(*reinterpret_cast<const RECT*>(lparam));
    default:
      return key_or_command_details(message, wparam, lparam, name_of);
  }
}

}  // namespace

std::string message_name(UINT message) {
  const auto found = names().find(message);
  if (found != names().end()) return found->second;
  if (message >= WM_USER && message < WM_APP) return "WM_USER+" + std::to_string(message - WM_USER);
  if (message >= WM_APP && message < 0xC000) return "WM_APP+" + std::to_string(message - WM_APP);
  return "";
}

std::string message_details(UINT message, WPARAM wparam, LPARAM lparam,
                            const WindowNamer& name_of) {
  const auto other = [&] { return name_of(reinterpret_cast<HWND>(wparam)); };
  switch (message) {
    case WM_SIZE:
      return std::to_string(wparam) + " " +
             size_text(LOWORD(static_cast<DWORD_PTR>(lparam)),
                       HIWORD(static_cast<DWORD_PTR>(lparam)));
    case WM_MOVE:
      return point_text(lparam);
    case WM_ACTIVATE:
      return std::to_string(LOWORD(wparam)) + " " + name_of(reinterpret_cast<HWND>(lparam));
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      return other();
    case WM_NCACTIVATE:
    case WM_ACTIVATEAPP:
    case WM_NCCALCSIZE:
    case WM_TIMER:
      return std::to_string(wparam);
    case WM_WINDOWPOSCHANGING:
    case WM_WINDOWPOSCHANGED:
      return window_position(*reinterpret_cast<const WINDOWPOS*>(lparam));
    case WM_STYLECHANGING:
    case WM_STYLECHANGED:
      return std::to_string(static_cast<int>(wparam));
    case WM_PARENTNOTIFY:
      return parent_notice(wparam, lparam, name_of);
    default:
      if (message >= WM_MOUSEFIRST && message < WM_MOUSEWHEEL) {
        return point_text(lparam) + " " + mouse_keys(wparam);
      }
      return mouse_details(message, wparam, lparam, name_of);
  }
}

}  // namespace corvane::conformance
