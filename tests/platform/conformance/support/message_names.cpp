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

// The messages, and their names in one text.
#define NAMED_MESSAGES(...)               \
  const UINT kMessages[] = {__VA_ARGS__}; \
  const char* const kMessageNames = #__VA_ARGS__

NAMED_MESSAGES(WM_CREATE, WM_DESTROY, WM_MOVE, WM_SIZE, WM_ACTIVATE, WM_SETFOCUS, WM_KILLFOCUS,
               WM_ENABLE, WM_SETREDRAW, WM_SETTEXT, WM_PAINT, WM_CLOSE, WM_ERASEBKGND,
               WM_SHOWWINDOW, WM_ACTIVATEAPP, WM_CANCELMODE, WM_SETCURSOR, WM_MOUSEACTIVATE,
               WM_CHILDACTIVATE, WM_GETMINMAXINFO, WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED,
               WM_CONTEXTMENU, WM_STYLECHANGING, WM_STYLECHANGED, WM_NCCREATE, WM_NCDESTROY,
               WM_NCCALCSIZE, WM_NCHITTEST, WM_NCPAINT, WM_NCACTIVATE, WM_NCLBUTTONDOWN,
               WM_NCLBUTTONUP, WM_NCLBUTTONDBLCLK, WM_KEYDOWN, WM_KEYUP, WM_CHAR, WM_SYSKEYDOWN,
               WM_SYSKEYUP, WM_SYSCHAR, WM_COMMAND, WM_SYSCOMMAND, WM_TIMER, WM_HSCROLL, WM_VSCROLL,
               WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN,
               WM_RBUTTONUP, WM_RBUTTONDBLCLK, WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MOUSEWHEEL,
               WM_PARENTNOTIFY, WM_CAPTURECHANGED, WM_MOVING, WM_ENTERSIZEMOVE, WM_EXITSIZEMOVE,
               WM_MOUSELEAVE);

#undef NAMED_MESSAGES

const std::map<UINT, std::string>& names() {
  static const auto table = [] {
    std::istringstream stream(kMessageNames);
    std::map<UINT, std::string> read;
    for (const UINT message : kMessages) {
      std::getline(stream >> std::ws, read[message], ',');
    }
    return read;
  }();
  return table;
}

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
  if (message == WM_SYSCOMMAND) return hexadecimal(wparam);
  if (message >= WM_KEYFIRST && message <= WM_KEYLAST) {
    return hexadecimal(wparam) + " " + std::to_string(LOWORD(static_cast<DWORD_PTR>(lparam))) +
           " " +
           flags_text(static_cast<UINT>(lparam),
                      {{1U << 29, "ALT"}, {1U << 30, "WAS_DOWN"}, {1U << 31, "GOES_UP"}});
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
