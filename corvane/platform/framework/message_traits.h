#pragma once
// Which signature a handler of each window message has, and how the message's parameters become
// its arguments. Points are client coordinates unless noted; window pointers may be temporary ones
// (see CWnd::FromHandle) and null.
#include "corvane/platform/framework/dc.h"
#include "corvane/platform/framework/point.h"
#include "corvane/platform/platform.h"

namespace corvane {

class CWnd;
class CScrollBar;

// CWnd::FromHandle, for the traits.
CWnd* wnd_from_parameter(WPARAM window);
CWnd* wnd_from_parameter(LPARAM window);
// Null for the window's own bar and for a control without a CScrollBar object.
CScrollBar* scroll_bar_from_parameter(LPARAM window);

// Each family has the handler's Signature and call(handler, wparam, lparam, result), which returns
// false when the message shall go on to its default handling. `handler` is a callable with the
// Signature.
namespace message_families {

inline CPoint point_of(LPARAM lparam) { return {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)}; }

struct Plain {
  using Signature = void();
  template <class Handler>
  static bool call(const Handler& handler, WPARAM, LPARAM, LRESULT&) {
    handler();
    return true;
  }
};
struct Generic {
  using Signature = LRESULT(WPARAM, LPARAM);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM lparam, LRESULT& result) {
    result = handler(wparam, lparam);
    return true;
  }
};
struct Mouse {
  using Signature = void(UINT flags, CPoint point);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM lparam, LRESULT&) {
    handler(static_cast<UINT>(wparam), point_of(lparam));
    return true;
  }
};
// The point is in screen coordinates. FALSE leaves the turn to the default handling.
struct Wheel {
  using Signature = BOOL(UINT flags, short distance, CPoint point);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM lparam, LRESULT& result) {
    result = handler(LOWORD(wparam), GET_WHEEL_DELTA_WPARAM(wparam), point_of(lparam));
    return result != 0;
  }
};
// -1 ends the creation.
struct Create {
  using Signature = int(LPCREATESTRUCT);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM, LPARAM lparam, LRESULT& result) {
    result = handler(reinterpret_cast<LPCREATESTRUCT>(lparam));
    return true;
  }
};
struct Size {
  using Signature = void(UINT kind, int width, int height);  // of the client area
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM lparam, LRESULT&) {
    const auto size = static_cast<DWORD_PTR>(lparam);
    handler(static_cast<UINT>(wparam), LOWORD(size), HIWORD(size));
    return true;
  }
};
// The client area's top left: of a child in its parent's client coordinates, else on the screen.
struct Move {
  using Signature = void(int x, int y);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM, LPARAM lparam, LRESULT&) {
    handler(GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam));
    return true;
  }
};
// The device context is lent for the call. FALSE: the background is still to be erased.
struct Erase {
  using Signature = BOOL(CDC* dc);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM, LRESULT& result) {
    CDC dc;
    dc.Attach(reinterpret_cast<HDC>(wparam));
    result = handler(&dc);
    dc.Detach();
    return true;
  }
};
struct Timer {
  using Signature = void(UINT_PTR id);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM, LRESULT&) {
    handler(wparam);
    return true;
  }
};
// TRUE: the cursor is set and the message ends here.
struct SetCursor {
  using Signature = BOOL(CWnd* window, UINT hit_code, UINT mouse_message);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM lparam, LRESULT& result) {
    const auto packed = static_cast<DWORD_PTR>(lparam);
    // The hit code is signed in 16 bits (HTERROR, HTTRANSPARENT) and stays so in the argument.
    const auto hit = static_cast<UINT>(static_cast<SHORT>(LOWORD(packed)));
    result = handler(wnd_from_parameter(wparam), hit, HIWORD(packed));
    return true;
  }
};
struct MouseActivate {
  using Signature = int(CWnd* top_level, UINT hit_code, UINT mouse_message);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM lparam, LRESULT& result) {
    const auto packed = static_cast<DWORD_PTR>(lparam);
    const auto hit = static_cast<UINT>(static_cast<SHORT>(LOWORD(packed)));
    result = handler(wnd_from_parameter(wparam), hit, HIWORD(packed));
    return true;
  }
};
struct Focus {
  using Signature = void(CWnd* other);  // the window that loses or gets the focus
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM, LRESULT&) {
    handler(wnd_from_parameter(wparam));
    return true;
  }
};
struct CaptureChanged {
  using Signature = void(CWnd* new_owner);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM, LPARAM lparam, LRESULT&) {
    handler(wnd_from_parameter(lparam));
    return true;
  }
};
struct Key {
  using Signature = void(UINT key_or_character, UINT repeats, UINT flags);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM lparam, LRESULT&) {
    const auto packed = static_cast<DWORD_PTR>(lparam);
    handler(static_cast<UINT>(wparam), LOWORD(packed), HIWORD(packed));
    return true;
  }
};
struct Activate {
  using Signature = void(UINT state, CWnd* other, BOOL minimized);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM lparam, LRESULT&) {
    handler(LOWORD(wparam), wnd_from_parameter(lparam), HIWORD(wparam));
    return true;
  }
};
struct Show {
  using Signature = void(BOOL shown, UINT reason);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM lparam, LRESULT&) {
    handler(wparam != 0, static_cast<UINT>(lparam));
    return true;
  }
};
struct Enable {
  using Signature = void(BOOL enabled);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM, LRESULT&) {
    handler(wparam != 0);
    return true;
  }
};
struct Scroll {
  using Signature = void(UINT code, UINT position, CScrollBar* bar);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM lparam, LRESULT&) {
    handler(LOWORD(wparam), HIWORD(wparam), scroll_bar_from_parameter(lparam));
    return true;
  }
};
struct HitTest {
  using Signature = LRESULT(CPoint screen_point);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM, LPARAM lparam, LRESULT& result) {
    result = handler(point_of(lparam));
    return true;
  }
};
struct DialogCode {
  using Signature = UINT();
  template <class Handler>
  static bool call(const Handler& handler, WPARAM, LPARAM, LRESULT& result) {
    result = static_cast<LRESULT>(handler());
    return true;
  }
};
struct SysCommand {
  using Signature = void(UINT command, LPARAM lparam);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM lparam, LRESULT&) {
    handler(static_cast<UINT>(wparam), lparam);
    return true;
  }
};
struct ContextMenu {
  using Signature = void(CWnd* window, CPoint screen_point);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM wparam, LPARAM lparam, LRESULT&) {
    handler(wnd_from_parameter(wparam), point_of(lparam));
    return true;
  }
};
template <class Record>
struct WithRecord {
  using Signature = void(Record*);
  template <class Handler>
  static bool call(const Handler& handler, WPARAM, LPARAM lparam, LRESULT&) {
    handler(reinterpret_cast<Record*>(lparam));
    return true;
  }
};

}  // namespace message_families

struct NoMessageTraits {};

template <UINT message>
struct MessageTraits : NoMessageTraits {};

// clang-format off
template <> struct MessageTraits<WM_CREATE> : message_families::Create {};
template <> struct MessageTraits<WM_DESTROY> : message_families::Plain {};
template <> struct MessageTraits<WM_NCDESTROY> : message_families::Plain {};
template <> struct MessageTraits<WM_CLOSE> : message_families::Plain {};
template <> struct MessageTraits<WM_PAINT> : message_families::Plain {};
template <> struct MessageTraits<WM_MOUSELEAVE> : message_families::Plain {};
template <> struct MessageTraits<WM_CANCELMODE> : message_families::Plain {};
template <> struct MessageTraits<WM_ENTERSIZEMOVE> : message_families::Plain {};
template <> struct MessageTraits<WM_EXITSIZEMOVE> : message_families::Plain {};
template <> struct MessageTraits<WM_SIZE> : message_families::Size {};
template <> struct MessageTraits<WM_MOVE> : message_families::Move {};
template <> struct MessageTraits<WM_ERASEBKGND> : message_families::Erase {};
template <> struct MessageTraits<WM_TIMER> : message_families::Timer {};
template <> struct MessageTraits<WM_SETCURSOR> : message_families::SetCursor {};
template <> struct MessageTraits<WM_MOUSEACTIVATE> : message_families::MouseActivate {};
template <> struct MessageTraits<WM_SETFOCUS> : message_families::Focus {};
template <> struct MessageTraits<WM_KILLFOCUS> : message_families::Focus {};
template <> struct MessageTraits<WM_CAPTURECHANGED> : message_families::CaptureChanged {};
template <> struct MessageTraits<WM_KEYDOWN> : message_families::Key {};
template <> struct MessageTraits<WM_KEYUP> : message_families::Key {};
template <> struct MessageTraits<WM_CHAR> : message_families::Key {};
template <> struct MessageTraits<WM_SYSKEYDOWN> : message_families::Key {};
template <> struct MessageTraits<WM_SYSKEYUP> : message_families::Key {};
template <> struct MessageTraits<WM_ACTIVATE> : message_families::Activate {};
template <> struct MessageTraits<WM_SHOWWINDOW> : message_families::Show {};
template <> struct MessageTraits<WM_ENABLE> : message_families::Enable {};
template <> struct MessageTraits<WM_VSCROLL> : message_families::Scroll {};
template <> struct MessageTraits<WM_HSCROLL> : message_families::Scroll {};
template <> struct MessageTraits<WM_NCHITTEST> : message_families::HitTest {};
template <> struct MessageTraits<WM_GETDLGCODE> : message_families::DialogCode {};
template <> struct MessageTraits<WM_SYSCOMMAND> : message_families::SysCommand {};
template <> struct MessageTraits<WM_CONTEXTMENU> : message_families::ContextMenu {};
template <> struct MessageTraits<WM_GETMINMAXINFO> : message_families::WithRecord<MINMAXINFO> {};
template <> struct MessageTraits<WM_WINDOWPOSCHANGING> : message_families::WithRecord<WINDOWPOS> {};
template <> struct MessageTraits<WM_WINDOWPOSCHANGED> : message_families::WithRecord<WINDOWPOS> {};
template <> struct MessageTraits<WM_MOUSEMOVE> : message_families::Mouse {};
template <> struct MessageTraits<WM_LBUTTONDOWN> : message_families::Mouse {};
template <> struct MessageTraits<WM_LBUTTONUP> : message_families::Mouse {};
template <> struct MessageTraits<WM_LBUTTONDBLCLK> : message_families::Mouse {};
template <> struct MessageTraits<WM_RBUTTONDOWN> : message_families::Mouse {};
template <> struct MessageTraits<WM_RBUTTONUP> : message_families::Mouse {};
template <> struct MessageTraits<WM_RBUTTONDBLCLK> : message_families::Mouse {};
template <> struct MessageTraits<WM_MBUTTONDOWN> : message_families::Mouse {};
template <> struct MessageTraits<WM_MBUTTONUP> : message_families::Mouse {};
template <> struct MessageTraits<WM_MBUTTONDBLCLK> : message_families::Mouse {};
// The hit code and the point in screen coordinates.
template <> struct MessageTraits<WM_NCMOUSEMOVE> : message_families::Mouse {};
template <> struct MessageTraits<WM_NCLBUTTONDOWN> : message_families::Mouse {};
template <> struct MessageTraits<WM_NCLBUTTONUP> : message_families::Mouse {};
template <> struct MessageTraits<WM_MOUSEWHEEL> : message_families::Wheel {};
template <> struct MessageTraits<WM_MOUSEHWHEEL> : message_families::Wheel {};
// clang-format on

}  // namespace corvane
