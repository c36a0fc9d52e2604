#pragma once
// The record of one window. Nobody keeps a pointer to it across a call of a window procedure: any
// handler may destroy any window, so code looks windows up again by handle.
#include <array>
#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "corvane/platform/system/gdi/region.h"
#include "corvane/platform/system/gdi/surface.h"
#include "corvane/platform/system/user/constants.h"
#include "corvane/platform/system/user/scroll_bars/scroll_model.h"
#include "corvane/platform/system/user/user_api.h"

namespace corvane::system {

struct WindowClass {
  std::wstring name;
  UINT style = 0;
  WNDPROC procedure = nullptr;
  int window_extra = 0;
  HINSTANCE instance = nullptr;
  HCURSOR cursor = nullptr;
  HBRUSH background = nullptr;
  ATOM atom = 0;
};

// How a WS_EX_LAYERED window is put on the screen; shows nothing until one of the two is set.
struct LayeredState {
  bool attributes = false;   // SetLayeredWindowAttributes: the window paints as usual
  bool content = false;      // UpdateLayeredWindow: the program supplied the pixels
  bool pixel_alpha = false;  // content with AC_SRC_ALPHA
  bool keyed = false;
  COLORREF key = 0;
  BYTE alpha = 255;
  DWORD flags = 0;  // as given
};

enum class ScrollAxis { horizontal = SB_HORZ, vertical = SB_VERT };

// A thumb in the user's hand; the model's position waits for the program to set it.
struct ThumbDrag {
  int begin = 0;     // of the thumb, along the bar
  int position = 0;  // that it means
};

struct ScrollBarState {
  std::optional<ScrollModel> model;  // nothing: the window never had this bar
  bool disabled = false;             // shown greyed though there is nowhere to scroll to
  ScrollPart pressed = ScrollPart::none;
  std::optional<ThumbDrag> drag;
};

struct Window;
using WindowList = std::list<Window*>;

struct Window {
  HWND handle = nullptr;
  std::shared_ptr<WindowClass> window_class;
  WNDPROC procedure = nullptr;
  DWORD style = 0;
  DWORD ex_style = 0;
  // In the parent's client coordinates; of a top-level window in screen coordinates.
  RECT frame{};
  RECT client{};

  // z_order.h changes these.
  Window* parent = nullptr;          // the desktop for top-level windows
  WindowList children;               // z-order, top first
  WindowList::iterator place;        // among the parent's children, when there is a parent
  HWND owner = nullptr;              // top-level windows only
  WindowList owned;                  // in no order
  WindowList::iterator owned_place;  // among the owner's, when there is an owner
  UINT_PTR id = 0;                   // child id or menu
  HINSTANCE instance = nullptr;
  std::wstring text;
  LONG_PTR user_data = 0;
  std::map<std::wstring, HANDLE> properties;  // by lower-case name
  std::array<HICON, 2> icons{};               // ICON_SMALL, ICON_BIG; the program's
  std::vector<std::uint8_t> extra;

  std::optional<RECT> text_caret;  // edits text there, client coordinates
  bool input_method_off = false;   // whatever that says

  Region update;             // to be painted, client coordinates
  bool needs_paint = false;  // a WM_PAINT is due (also with an empty region)
  bool needs_erase = false;
  bool redraw = true;  // WM_SETREDRAW

  std::array<ScrollBarState, 2> bars;        // by ScrollAxis
  bool bars_due = false;                     // the scroll bars are to be drawn
  std::optional<ScrollAxis> scroll_control;  // the window is a scroll bar: its whole client area
  bool frame_due = false;                    // the whole frame is, with the scroll bars
  bool frame_active = false;                 // drawn as that of the active window
  int pressed_box = HTNOWHERE;               // HTCLOSE and others while the user holds it down

  // While maximized or minimized: where it goes back to, in the coordinates of `frame`.
  std::optional<RECT> restored_frame;
  bool maximized_before = false;  // it was maximized when it was minimized
  bool hidden_by_owner = false;   // by the minimizing of its owner

  LayeredState layered;
  std::shared_ptr<Surface> surface;  // top-level and layered windows: pixels of the whole frame

  bool destroying = false;
  bool first_size_due = false;  // captioned: WM_SIZE and WM_MOVE come when it is first shown

  bool is_child() const { return (style & WS_CHILD) != 0; }
  bool is_layered() const { return (ex_style & WS_EX_LAYERED) != 0; }
  bool has_caption() const { return (style & WS_CAPTION) == WS_CAPTION; }
  ScrollBarState& bar(ScrollAxis axis) { return bars[static_cast<std::size_t>(axis)]; }
  const ScrollBarState& bar(ScrollAxis axis) const { return bars[static_cast<std::size_t>(axis)]; }
  int width() const { return frame.right - frame.left; }
  int height() const { return frame.bottom - frame.top; }
  RECT client_area() const {
    return {0, 0, client.right - client.left, client.bottom - client.top};
  }
};

}  // namespace corvane::system
