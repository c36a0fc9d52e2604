// GetWindowLong, SetWindowLong: styles, procedure, id and the window's extra bytes.
#include <cstring>

#include "corvane/platform/system/user/frames/frame_layout.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/windows/window_geometry.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

void layered_style_changed(Window& window) {
  window.layered = LayeredState{};
  damage_frame(*corvane::system::system(), window);
  if (is_top_level(window)) return;
  // Beyond all reason it stays without, and shows nothing.
  const bool own = window.is_layered() && Surface::can_hold(window.width(), window.height());
  window.surface = own ? std::make_shared<Surface>(window.width(), window.height()) : nullptr;
}

LONG_PTR change_style(HWND window, int index, DWORD value) {
  Window* found = find(window);
  const DWORD& slot = index == GWL_STYLE ? found->style : found->ex_style;
  STYLESTRUCT styles{slot, value};
  const DWORD old = slot;
  auto which = static_cast<WPARAM>(static_cast<LONG_PTR>(index));
  send(window, WM_STYLECHANGING, which, reinterpret_cast<LPARAM>(&styles));
  found = find(window);
  if (found == nullptr) return static_cast<LONG_PTR>(old);
  if (index == GWL_STYLE) {
    // What a window is to its parent cannot change under it.
    constexpr DWORD kFixed = WS_CHILD;
    found->style = (styles.styleNew & ~kFixed) | (found->style & kFixed);
    found->ex_style = with_window_edge(found->style, found->ex_style);
  } else {
    const bool was_layered = found->is_layered();
    found->ex_style = with_window_edge(found->style, styles.styleNew);
    corvane::system::system()->lifted = nullptr;  // it may be topmost now, or no longer
    if (was_layered != found->is_layered()) layered_style_changed(*found);
  }
  styles.styleOld = old;
  send(window, WM_STYLECHANGED, which, reinterpret_cast<LPARAM>(&styles));
  return static_cast<LONG_PTR>(static_cast<LONG>(old));
}

bool extra_bytes_hold(const Window& window, int index) {
  return index >= 0 && static_cast<std::size_t>(index) + sizeof(LONG_PTR) <= window.extra.size();
}

}  // namespace

LONG_PTR GetWindowLongPtrW(HWND window, int index) {
  Window* found = checked(window);
  if (found == nullptr) return 0;
  switch (index) {
    case GWL_STYLE:
      return static_cast<LONG>(found->style);
    case GWL_EXSTYLE:
      return static_cast<LONG>(found->ex_style);
    case GWLP_WNDPROC:
      return reinterpret_cast<LONG_PTR>(found->procedure);
    case GWLP_HINSTANCE:
      return reinterpret_cast<LONG_PTR>(found->instance);
    case GWLP_HWNDPARENT:
      return reinterpret_cast<LONG_PTR>(GetParent(window));
    case GWLP_ID:
      return static_cast<LONG_PTR>(found->id);
    case GWLP_USERDATA:
      return found->user_data;
    default:
      break;
  }
  if (!extra_bytes_hold(*found, index)) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  LONG_PTR value = 0;
  std::memcpy(&value, found->extra.data() + index, sizeof(value));
  return value;
}

LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value) {
  Window* found = checked(window);
  if (found == nullptr) return 0;
  const LONG_PTR old = GetWindowLongPtrW(window, index);
  switch (index) {
    case GWL_STYLE:
    case GWL_EXSTYLE:
      return change_style(window, index, static_cast<DWORD>(value));
    case GWLP_WNDPROC:
      if (value != 0) found->procedure = reinterpret_cast<WNDPROC>(value);
      return old;
    case GWLP_ID:
      found->id = static_cast<UINT_PTR>(value);
      return old;
    case GWLP_USERDATA:
      found->user_data = value;
      return old;
    default:
      break;
  }
  if (!extra_bytes_hold(*found, index)) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  std::memcpy(found->extra.data() + index, &value, sizeof(value));
  return old;
}

LONG GetWindowLongW(HWND window, int index) {
  return static_cast<LONG>(GetWindowLongPtrW(window, index));
}

LONG SetWindowLongW(HWND window, int index, LONG value) {
  return static_cast<LONG>(SetWindowLongPtrW(window, index, value));
}

}  // namespace corvane_system
