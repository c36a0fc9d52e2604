// Who is whose parent, owner, sibling; coordinates; texts; styles.
#include <algorithm>
#include <cstring>

#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/windows/window_geometry.h"
#include "corvane/platform/system/user/windows/z_order.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

HWND handle_of(const Window* window) { return window == nullptr ? nullptr : window->handle; }

HWND sibling(const Window& window, UINT relation) {
  const WindowList& order = window.parent->children;
  if (relation == GW_HWNDFIRST) return order.front()->handle;
  if (relation == GW_HWNDLAST) return order.back()->handle;
  const auto next = std::next(window.place);
  if (relation == GW_HWNDNEXT) return next == order.end() ? nullptr : (*next)->handle;
  return window.place == order.begin() ? nullptr : (*std::prev(window.place))->handle;
}

// A window is no parent of itself, of one that it lies in, or of one that owns it: parents and
// owners would go round in a circle.
bool may_become_parent(System& state, Window& parent, const Window& window) {
  if (&parent == &window || is_descendant(window, parent)) return false;
  if (parent.parent == nullptr) return true;
  return !owned_by(state, window, *top_level_of(parent)) &&
         depth_of(parent) + depth_of_children(window) < kMaxNesting;
}

void shift(LPPOINT points, UINT count, POINT by) {
  for (UINT i = 0; i < count; ++i) {
    points[i].x = static_cast<LONG>(static_cast<ULONG>(points[i].x) + static_cast<ULONG>(by.x));
    points[i].y = static_cast<LONG>(static_cast<ULONG>(points[i].y) + static_cast<ULONG>(by.y));
  }
}

}  // namespace

BOOL IsWindowEnabled(HWND window) {
  Window* found = checked(window);
  return found != nullptr && (found->style & WS_DISABLED) == 0 ? TRUE : FALSE;
}

BOOL IsChild(HWND parent, HWND window) {
  Window* above = find(parent);
  Window* below = find(window);
  return above != nullptr && below != nullptr && below->is_child() && is_descendant(*above, *below)
             ? TRUE
             : FALSE;
}

BOOL GetWindowRect(HWND window, LPRECT rect) {
  Window* found = checked(window);
  if (found == nullptr || rect == nullptr) return FALSE;
  *rect = frame_on_screen(*found);
  return TRUE;
}

BOOL GetClientRect(HWND window, LPRECT rect) {
  Window* found = checked(window);
  if (found == nullptr || rect == nullptr) return FALSE;
  *rect = found->client_area();
  return TRUE;
}

BOOL ClientToScreen(HWND window, LPPOINT point) {
  Window* found = checked(window);
  if (found == nullptr || point == nullptr) return FALSE;
  shift(point, 1, client_origin(*found));
  return TRUE;
}

BOOL ScreenToClient(HWND window, LPPOINT point) {
  Window* found = checked(window);
  if (found == nullptr || point == nullptr) return FALSE;
  const POINT origin = client_origin(*found);
  shift(point, 1, {-origin.x, -origin.y});
  return TRUE;
}

int MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count) {
  if ((from != nullptr && checked(from) == nullptr) || (to != nullptr && checked(to) == nullptr) ||
      points == nullptr) {
    return 0;
  }
  const POINT source = from == nullptr ? POINT{0, 0} : client_origin(*find(from));
  const POINT target = to == nullptr ? POINT{0, 0} : client_origin(*find(to));
  const POINT by{source.x - target.x, source.y - target.y};
  shift(points, count, by);
  return static_cast<int>(MAKELONG(static_cast<WORD>(by.x), static_cast<WORD>(by.y)));
}

HWND GetParent(HWND window) {
  Window* found = checked(window);
  if (found == nullptr || found->parent == nullptr) return nullptr;
  return found->is_child() ? found->parent->handle : found->owner;
}

HWND SetParent(HWND window, HWND parent) {
  System* state = corvane::system::system();
  Window* found = checked(window);
  Window* target = parent == nullptr && state != nullptr ? state->desktop : checked(parent);
  if (found == nullptr || target == nullptr || found->parent == nullptr || found->destroying ||
      target->destroying) {
    return nullptr;
  }
  const bool fits = Surface::can_hold(found->width(), found->height());
  if (!may_become_parent(*state, *target, *found) || (target == state->desktop && !fits)) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  HWND old = found->parent->handle;
  const BOOL was_visible = ShowWindow(window, SW_HIDE);
  found = find(window);
  target = parent == nullptr ? state->desktop : find(parent);
  if (found == nullptr || target == nullptr || !may_become_parent(*state, *target, *found)) {
    return nullptr;
  }
  detach(*state, *found);
  if (target == state->desktop) {
    insert_top_level(*state, *found);
  } else {
    insert_child(*target, *found, Among::top);
  }
  const bool own = is_top_level(*found) || found->is_layered();
  found->surface = own ? std::make_shared<Surface>(found->width(), found->height()) : nullptr;
  if (was_visible) ShowWindow(window, SW_SHOW);
  return old;
}

HWND GetAncestor(HWND window, UINT kind) {
  Window* found = checked(window);
  if (found == nullptr || found->parent == nullptr) return nullptr;
  if (kind == GA_PARENT) return found->parent->handle;
  Window* root = top_level_of(*found);
  if (kind == GA_ROOT) return root->handle;
  if (kind != GA_ROOTOWNER) return nullptr;
  HWND last = root->handle;
  while (HWND next = GetParent(last)) last = next;
  return last;
}

HWND GetWindow(HWND window, UINT relation) {
  Window* found = checked(window);
  if (found == nullptr) return nullptr;
  if (relation == GW_CHILD) {
    return found->children.empty() ? nullptr : found->children.front()->handle;
  }
  if (relation == GW_OWNER) return found->owner;
  if (relation > GW_CHILD || found->parent == nullptr) return nullptr;
  return sibling(*found, relation);
}

HWND GetTopWindow(HWND window) {
  return GetWindow(window == nullptr ? GetDesktopWindow() : window, GW_CHILD);
}

HWND GetDesktopWindow() {
  System* state = corvane::system::system();
  return state == nullptr ? nullptr : handle_of(state->desktop);
}

HWND GetDlgItem(HWND window, int id) {
  Window* found = checked(window);
  if (found == nullptr) return nullptr;
  for (const Window* child : found->children) {
    if (static_cast<int>(child->id) == id) return child->handle;
  }
  SetLastError(ERROR_CONTROL_ID_NOT_FOUND);
  return nullptr;
}

int GetDlgCtrlID(HWND window) {
  Window* found = checked(window);
  return found == nullptr || !found->is_child() ? 0 : static_cast<int>(found->id);
}

BOOL EnumChildWindows(HWND window, WNDENUMPROC callback, LPARAM parameter) {
  Window* found = checked(window);
  if (found == nullptr || callback == nullptr) return FALSE;
  for (HWND child : children_of(*found)) {
    if (find(child) == nullptr) continue;
    if (callback(child, parameter) == FALSE) return FALSE;
    if (find(child) != nullptr && EnumChildWindows(child, callback, parameter) == FALSE) {
      return FALSE;
    }
  }
  return TRUE;
}

BOOL SetWindowTextW(HWND window, LPCWSTR text) {
  if (checked(window) == nullptr) return FALSE;
  return send(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0 ? TRUE : FALSE;
}

int GetWindowTextW(HWND window, LPWSTR buffer, int size) {
  if (checked(window) == nullptr || buffer == nullptr || size <= 0) return 0;
  buffer[0] = 0;
  return static_cast<int>(
      send(window, WM_GETTEXT, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(buffer)));
}

int GetWindowTextLengthW(HWND window) {
  return checked(window) == nullptr ? 0 : static_cast<int>(send(window, WM_GETTEXTLENGTH));
}

DWORD GetWindowThreadProcessId(HWND window, DWORD* process) {
  if (checked(window) == nullptr) return 0;
  if (process != nullptr) *process = 1;
  return GetCurrentThreadId();
}

}  // namespace corvane_system
