// CreateWindowExW: the order of messages a window is born with.
#include "corvane/platform/system/user/frames/frame_layout.h"
#include "corvane/platform/system/user/messages/hooks.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/windows/destroy_window.h"
#include "corvane/platform/system/user/windows/size_limits.h"
#include "corvane/platform/system/user/windows/window_classes.h"
#include "corvane/platform/system/user/windows/window_geometry.h"
#include "corvane/platform/system/user/windows/z_order.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

// The window that a pop-up created with this parent is owned by.
Window* owner_for(HWND parent) {
  Window* found = find(parent);
  return found == nullptr || found->parent == nullptr ? nullptr : top_level_of(*found);
}

bool nested_too_deep(System& state, DWORD style, HWND parent) {
  if ((style & WS_CHILD) != 0) return depth_of(*find(parent)) >= kMaxNesting;
  const Window* owner = owner_for(parent);
  return owner != nullptr && owners_of(state, *owner) >= kMaxNesting;
}

RECT initial_frame(const System& state, const CREATESTRUCTW& create) {
  const bool default_place = create.x == CW_USEDEFAULT;
  const bool default_size = create.cx == CW_USEDEFAULT;
  const int x = default_place ? 0 : window_coordinate(create.x);
  const int y = default_place ? 0 : window_coordinate(create.y);
  const int width = default_size ? state.frame.width() : window_size(create.cx);
  const int height = default_size ? state.frame.height() : window_size(create.cy);
  return {x, y, x + width, y + height};
}

bool too_large(const System& state, const CREATESTRUCTW& create) {
  const auto style = static_cast<DWORD>(create.style);
  if ((style & WS_CHILD) != 0 && (create.dwExStyle & WS_EX_LAYERED) == 0) return false;
  const RECT frame = initial_frame(state, create);
  return !Surface::can_hold(frame.right - frame.left, frame.bottom - frame.top);
}

// The checks that refuse a creation; sets the error code.
bool creatable(System& state, const std::shared_ptr<WindowClass>& window_class,
               const CREATESTRUCTW& create) {
  const auto style = static_cast<DWORD>(create.style);
  HWND parent = create.hwndParent;
  DWORD error = ERROR_SUCCESS;
  if (window_class == nullptr) {
    error = ERROR_CLASS_DOES_NOT_EXIST;
  } else if ((style & WS_CHILD) != 0 && parent == nullptr) {
    error = ERROR_TLW_WITH_WSCHILD;
  } else if (parent != nullptr && find(parent) == nullptr) {
    error = ERROR_INVALID_WINDOW_HANDLE;
  } else if (Window* found = find(parent); found != nullptr && found->destroying) {
    error = ERROR_INVALID_WINDOW_HANDLE;
  } else if (nested_too_deep(state, style, parent)) {
    error = ERROR_INVALID_PARAMETER;
  } else if (too_large(state, create)) {
    error = ERROR_NOT_ENOUGH_MEMORY;
  }
  if (error != ERROR_SUCCESS) SetLastError(error);
  return error == ERROR_SUCCESS;
}

// WS_VISIBLE, WS_MAXIMIZE and WS_MINIMIZE come at the end, with their messages. A window that is
// neither pop-up nor child has a caption.
DWORD first_style(DWORD asked) {
  const DWORD style = asked & ~(WS_VISIBLE | WS_MAXIMIZE | WS_MINIMIZE);
  return (style & (WS_POPUP | WS_CHILD)) != 0 ? style : style | WS_CAPTION;
}

int first_show_command(DWORD asked) {
  if ((asked & WS_MINIMIZE) != 0) return SW_SHOWMINIMIZED;
  return (asked & WS_MAXIMIZE) != 0 ? SW_SHOWMAXIMIZED : SW_SHOW;
}

Window& add_record(System& state, std::shared_ptr<WindowClass> window_class,
                   const CREATESTRUCTW& create) {
  auto record = std::make_unique<Window>();
  Window& window = *record;
  window.handle = state.new_handle();
  window.procedure = window_class->procedure;
  window.extra.resize(static_cast<std::size_t>(window_class->window_extra));
  window.window_class = std::move(window_class);
  window.style = first_style(static_cast<DWORD>(create.style));
  window.ex_style = with_window_edge(window.style, create.dwExStyle);
  window.id = reinterpret_cast<UINT_PTR>(create.hMenu);
  window.instance = create.hInstance;
  window.frame = initial_frame(state, create);
  window.client = window.frame;
  state.windows[window.handle] = std::move(record);
  state.queue.add_window(window.handle);
  return window;
}

void link(System& state, Window& window, HWND parent) {
  if (window.is_child()) {
    insert_child(*state.find(parent), window);
  } else {
    window.style |= WS_CLIPSIBLINGS;
    insert_top_level(state, window, owner_for(parent));
  }
  if (is_top_level(window) || window.is_layered()) {
    window.surface = std::make_shared<Surface>(window.width(), window.height());
  }
}

void discard(HWND window) {
  if (find(window) == nullptr) return;
  finish_destruction(window);
}

// A captioned window is asked for its limits before it is told of its creation.
bool limit_first_size(HWND window) {
  const MINMAXINFO limits = ask_limits(window);
  Window* found = find(window);
  if (found == nullptr) return false;
  const SIZE size = within_limits({found->width(), found->height()}, limits);
  found->frame.right = found->frame.left + window_size(size.cx);
  found->frame.bottom = found->frame.top + window_size(size.cy);
  found->client = found->frame;
  if (found->surface != nullptr) found->surface->resize(found->width(), found->height());
  return true;
}

// WM_NCCREATE to WM_MOVE; false when the window was refused or destroyed.
bool bring_to_life(HWND window, CREATESTRUCTW& create) {
  auto lparam = reinterpret_cast<LPARAM>(&create);
  const bool captioned = find(window)->has_caption();
  if (captioned && !limit_first_size(window)) return false;
  if (send(window, WM_NCCREATE, 0, lparam) == 0) {
    discard(window);
    return false;
  }
  if (find(window) == nullptr) return false;
  calculate_first_client(window);
  if (find(window) == nullptr) return false;
  if (send(window, WM_CREATE, 0, lparam) == -1) {
    discard(window);
    return false;
  }
  Window* found = find(window);
  if (found == nullptr) return false;
  if (captioned) {
    found->first_size_due = true;
    return true;
  }
  send(window, WM_SIZE, SIZE_RESTORED, client_size_lparam(*found));
  found = find(window);
  if (found != nullptr) send(window, WM_MOVE, 0, client_position_lparam(*found));
  return find(window) != nullptr;
}

// What a handler throws leaves no window behind: nobody has got its handle.
bool bring_to_life_or_discard(HWND window, CREATESTRUCTW& create) {
  try {
    return bring_to_life(window, create);
  } catch (...) {
    discard(window);
    throw;
  }
}

}  // namespace

HWND CreateWindowExW(DWORD ex_style, LPCWSTR class_name, LPCWSTR window_name, DWORD style, int x,
                     int y, int width, int height, HWND parent, HMENU menu_or_id,
                     HINSTANCE instance, LPVOID parameter) {
  System* state = corvane::system::system();
  if (state == nullptr) return nullptr;
  auto window_class = find_class(*state, class_name);
  CREATESTRUCTW create{
      parameter,   instance,   menu_or_id, parent, height, width, y, x, static_cast<LONG>(style),
      window_name, class_name, ex_style};
  if (!creatable(*state, window_class, create)) return nullptr;
  Window& record = add_record(*state, window_class, create);
  link(*state, record, parent);
  HWND window = record.handle;
  if (!ask_creation_hooks(window, create)) {
    if (find(window) != nullptr) forget_window(window);
    return nullptr;
  }
  if (find(window) == nullptr || !bring_to_life_or_discard(window, create)) return nullptr;
  if ((style & WS_CHILD) != 0) {
    const WPARAM what = MAKEWPARAM(WM_CREATE, static_cast<DWORD_PTR>(GetDlgCtrlID(window)));
    notify_parents(window, what, [window](HWND) { return reinterpret_cast<LPARAM>(window); });
  }
  if ((style & WS_VISIBLE) != 0 && find(window) != nullptr) {
    ShowWindow(window, first_show_command(style));
  }
  return find(window) == nullptr ? nullptr : window;
}

}  // namespace corvane_system
