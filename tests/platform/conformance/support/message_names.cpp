#include "tests/platform/conformance/support/message_names.h"

#include <algorithm>
#include <initializer_list>
#include <sstream>
#include <utility>
#include <vector>

#include "tests/support/rects.h"

namespace corvane::conformance {

namespace {

#define SWP_NOCLIENTSIZE 0x0800u
#define SWP_NOCLIENTMOVE 0x1000u

// Numbers in a given order, with what the sources call them.
using Names = std::vector<std::pair<UINT, std::string>>;

Names named(std::initializer_list<UINT> numbers, const char* text) {
  std::istringstream stream(text);
  Names names;
  for (const UINT number : numbers) {
    names.emplace_back(number, "");
    std::getline(stream >> std::ws, names.back().second, ',');
  }
  return names;
}

#define NAMED(...) named({__VA_ARGS__}, #__VA_ARGS__)

const Names kMessages = NAMED(
    WM_CREATE, WM_DESTROY, WM_MOVE, WM_SIZE, WM_ACTIVATE, WM_SETFOCUS, WM_KILLFOCUS, WM_ENABLE,
    WM_SETREDRAW, WM_SETTEXT, WM_PAINT, WM_CLOSE, WM_ERASEBKGND, WM_SHOWWINDOW, WM_ACTIVATEAPP,
    WM_CANCELMODE, WM_SETCURSOR, WM_MOUSEACTIVATE, WM_CHILDACTIVATE, WM_GETMINMAXINFO,
    WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED, WM_CONTEXTMENU, WM_STYLECHANGING, WM_STYLECHANGED,
    WM_NCCREATE, WM_NCDESTROY, WM_NCCALCSIZE, WM_NCHITTEST, WM_NCPAINT, WM_NCACTIVATE,
    WM_NCLBUTTONDOWN, WM_NCLBUTTONUP, WM_NCLBUTTONDBLCLK, WM_KEYDOWN, WM_KEYUP, WM_CHAR,
    WM_SYSKEYDOWN, WM_SYSKEYUP, WM_SYSCHAR, WM_SYSCOMMAND, WM_TIMER, WM_HSCROLL, WM_VSCROLL,
    WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONUP,
    WM_RBUTTONDBLCLK, WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MOUSEWHEEL, WM_PARENTNOTIFY,
    WM_CAPTURECHANGED, WM_MOVING, WM_SIZING, WM_ENTERSIZEMOVE, WM_EXITSIZEMOVE, WM_MOUSELEAVE,
    WM_RENDERFORMAT, WM_RENDERALLFORMATS, WM_DESTROYCLIPBOARD, WM_CLIPBOARDUPDATE);
const Names kMouseKeys = NAMED(MK_LBUTTON, MK_RBUTTON, MK_SHIFT, MK_CONTROL, MK_MBUTTON);
const Names kPositionFlags =
    NAMED(SWP_NOSIZE, SWP_NOMOVE, SWP_NOZORDER, SWP_NOREDRAW, SWP_NOACTIVATE, SWP_FRAMECHANGED,
          SWP_SHOWWINDOW, SWP_HIDEWINDOW, SWP_NOCLIENTSIZE, SWP_NOCLIENTMOVE);
const Names kScrollCodes = NAMED(SB_LINEUP, SB_LINEDOWN, SB_PAGEUP, SB_PAGEDOWN, SB_THUMBPOSITION,
                                 SB_THUMBTRACK, SB_TOP, SB_BOTTOM, SB_ENDSCROLL);
const Names kKeyFlags = {{1U << 29, "K_ALT"}, {1U << 30, "K_WAS_DOWN"}, {1U << 31, "K_GOES_UP"}};

#undef NAMED

// Empty: it has none.
std::string name_in(const Names& names, UINT number) {
  const auto found = std::find_if(names.begin(), names.end(),
                                  [number](const auto& each) { return each.first == number; });
  return found != names.end() ? found->second : "";
}

std::string without_prefix(const std::string& name) { return name.substr(name.find('_') + 1); }

std::string flags_text(UINT flags, const Names& names) {
  std::string text;
  for (const auto& [flag, name] : names) {
    if ((flags & flag) != 0) text += (text.empty() ? "" : "|") + without_prefix(name);
  }
  return text.empty() ? "-" : text;
}

std::string size_text(int width, int height) {
  return std::to_string(width) + "x" + std::to_string(height);
}

// The ways to read a message's parameters.
class Reader {
 public:
  Reader(const Message& sent, const WindowNamer& name_of)
      : wparam_(sent.wparam), lparam_(sent.lparam), name_of_(name_of) {}

  std::string number() const { return std::to_string(static_cast<int>(wparam_)); }
  std::string other_number() const { return std::to_string(lparam_); }
  std::string low_word() const { return std::to_string(LOWORD(wparam_)); }
  std::string high_word() const { return std::to_string(static_cast<SHORT>(HIWORD(wparam_))); }
  std::string window() const { return name_of_(reinterpret_cast<HWND>(wparam_)); }
  std::string other_window() const { return name_of_(reinterpret_cast<HWND>(lparam_)); }
  std::string point() const { return test::text_of(POINT{x(), y()}); }
  std::string size() const { return size_text(x(), y()); }
  std::string rect() const { return test::text_of(*reinterpret_cast<const RECT*>(lparam_)); }
  std::string mouse_keys() const { return flags_text(LOWORD(wparam_), kMouseKeys); }
  std::string key_count() const { return std::to_string(x()); }
  std::string key_flags() const { return flags_text(static_cast<UINT>(lparam_), kKeyFlags); }
  std::string hexadecimal() const {
    std::ostringstream text;
    text << "0x" << std::hex << std::uppercase << wparam_;
    return text.str();
  }
  // The code and the message that asks.
  std::string hit() const {
    return std::to_string(x()) + " " + (y() == 0 ? "0" : message_name(static_cast<UINT>(y())));
  }
  // The code by its vertical name, the position as the program sees it, the bar's handle if any.
  std::string scroll() const {
    return without_prefix(name_in(kScrollCodes, LOWORD(wparam_))) + " " +
           std::to_string(HIWORD(wparam_)) + (lparam_ == 0 ? "" : " bar");
  }
  // Flags first; the numbers that the flags declare unused are left out.
  std::string position() const {
    const auto& [window, after, left, top, width, height, flags] =
        *reinterpret_cast<const WINDOWPOS*>(lparam_);
    return flags_text(flags, kPositionFlags) +
           ((flags & SWP_NOMOVE) != 0 ? "" : " " + test::text_of(POINT{left, top})) +
           ((flags & SWP_NOSIZE) != 0 ? "" : " " + size_text(width, height));
  }
  std::string notice() const {
    const UINT event = LOWORD(wparam_);
    const bool of_child = event == WM_CREATE || event == WM_DESTROY;
    return message_name(event) + " " + (of_child ? high_word() + " " + other_window() : point());
  }

 private:
  int x() const { return GET_X_LPARAM(lparam_); }
  int y() const { return GET_Y_LPARAM(lparam_); }

  WPARAM wparam_;
  LPARAM lparam_;
  const WindowNamer& name_of_;
};

using Parts = std::vector<std::string (Reader::*)() const>;

struct Reading {
  std::vector<UINT> messages;
  Parts parts;
};

const Reading kReadings[] = {
    {{WM_NCCREATE, WM_CREATE, WM_SETTEXT, WM_GETMINMAXINFO, WM_PAINT, WM_ERASEBKGND, WM_NCPAINT},
     {}},
    {{WM_SIZE}, {&Reader::number, &Reader::size}},
    {{WM_MOVE, WM_NCHITTEST}, {&Reader::point}},
    {{WM_MOVING}, {&Reader::rect}},
    {{WM_SIZING}, {&Reader::number, &Reader::rect}},
    {{WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED}, {&Reader::position}},
    {{WM_NCACTIVATE, WM_ACTIVATEAPP, WM_NCCALCSIZE, WM_TIMER, WM_STYLECHANGING, WM_STYLECHANGED},
     {&Reader::number}},
    {{WM_ACTIVATE}, {&Reader::low_word, &Reader::other_window}},
    {{WM_SETFOCUS, WM_KILLFOCUS}, {&Reader::window}},
    {{WM_CAPTURECHANGED}, {&Reader::other_window}},
    {{WM_PARENTNOTIFY}, {&Reader::notice}},
    {{WM_SETCURSOR, WM_MOUSEACTIVATE}, {&Reader::window, &Reader::hit}},
    {{WM_CONTEXTMENU}, {&Reader::window, &Reader::point}},
    {{WM_MOUSEWHEEL}, {&Reader::high_word, &Reader::point, &Reader::mouse_keys}},
    {{WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONUP,
      WM_RBUTTONDBLCLK, WM_MBUTTONDOWN, WM_MBUTTONUP},
     {&Reader::point, &Reader::mouse_keys}},
    {{WM_NCLBUTTONDOWN, WM_NCLBUTTONUP, WM_NCLBUTTONDBLCLK}, {&Reader::number, &Reader::point}},
    {{WM_HSCROLL, WM_VSCROLL}, {&Reader::scroll}},
    {{WM_SYSCOMMAND}, {&Reader::hexadecimal}},
    {{WM_KEYDOWN, WM_KEYUP, WM_CHAR, WM_SYSKEYDOWN, WM_SYSKEYUP, WM_SYSCHAR},
     {&Reader::hexadecimal, &Reader::key_count, &Reader::key_flags}},
};

Parts parts_of(UINT message) {
  for (const auto& [messages, parts] : kReadings) {
    if (std::find(messages.begin(), messages.end(), message) != messages.end()) return parts;
  }
  return {&Reader::number, &Reader::other_number};
}

}  // namespace

std::string message_name(UINT message) {
  if (message >= WM_USER && message < WM_APP) return "WM_USER+" + std::to_string(message - WM_USER);
  if (message >= WM_APP && message < 0xC000) return "WM_APP+" + std::to_string(message - WM_APP);
  return name_in(kMessages, message);
}

std::string message_details(const Message& sent, const WindowNamer& name_of) {
  const Reader reader(sent, name_of);
  std::string text;
  for (const auto part : parts_of(sent.message)) text += " " + (reader.*part)();
  return text;
}

}  // namespace corvane::conformance
