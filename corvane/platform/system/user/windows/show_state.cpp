#include "corvane/platform/system/user/windows/show_state.h"

#include <algorithm>
#include <utility>

#include "corvane/platform/system/user/frames/frame_metrics.h"
#include "corvane/platform/system/user/input/activation.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/windows/show_window.h"
#include "corvane/platform/system/user/windows/size_limits.h"
#include "corvane/platform/system/user/windows/window_geometry.h"

namespace corvane::system {
namespace {

constexpr DWORD kStates = WS_MAXIMIZE | WS_MINIMIZE;

bool overlaps(const RECT& a, const RECT& b) {
  RECT common{};
  return IntersectRect(&common, &a, &b) != 0;
}

// The first free place at the foot of the screen or the parent, from the left and then upwards.
RECT minimized_frame(const Window& window) {
  const RECT area = window.parent->client_area();
  const int columns = std::max<int>(1, area.right / kMinimizedWidth);
  for (int place = 0;; ++place) {
    const int left = place % columns * kMinimizedWidth;
    const int bottom = area.bottom - place / columns * kMinimizedHeight;
    const RECT frame{left, bottom - kMinimizedHeight, left + kMinimizedWidth, bottom};
    const auto& siblings = window.parent->children;
    const bool taken = std::ranges::any_of(siblings, [&](const Window* other) {
      return other != &window && (other->style & WS_MINIMIZE) != 0 && overlaps(other->frame, frame);
    });
    if (!taken) return frame;
  }
}

// The style is changed first: the window measures and draws itself as what it becomes.
bool change_state(HWND window, DWORD state_style, const RECT& frame) {
  Window* found = find(window);
  found->style = (found->style & ~kStates) | state_style;
  SetWindowPos(window, nullptr, frame.left, frame.top, frame.right - frame.left,
               frame.bottom - frame.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  return find(window) != nullptr;
}

std::vector<HWND> owned_windows(HWND owner) {
  std::vector<HWND> owned;
  for (const Window* top : system()->desktop->children) {
    if (top->owner == owner) owned.push_back(top->handle);
  }
  return owned;
}

void hide_owned_windows(HWND owner) {
  for (const HWND handle : owned_windows(owner)) {
    const Window* found = find(handle);
    if (found == nullptr || (found->style & WS_VISIBLE) == 0) continue;
    send(handle, WM_SHOWWINDOW, FALSE, SW_PARENTCLOSING);
    if (Window* hidden = find(handle)) hidden->hidden_by_owner = true;
    make_hidden(handle);
    activate_next_after(handle);
    hide_owned_windows(handle);
  }
}

void show_owned_windows(HWND owner) {
  for (const HWND handle : owned_windows(owner)) {
    Window* found = find(handle);
    if (found == nullptr || !std::exchange(found->hidden_by_owner, false)) continue;
    send(handle, WM_SHOWWINDOW, TRUE, SW_PARENTOPENING);
    make_visible(handle);
    show_owned_windows(handle);
  }
}

void remember_normal_frame(Window& window) {
  if ((window.style & kStates) == 0) window.restored_frame = window.frame;
}

bool usable(const Window* window, DWORD state_style) {
  return window != nullptr && window->parent != nullptr && (window->style & state_style) == 0;
}

}  // namespace

bool maximize(HWND window) {
  Window* found = find(window);
  if (!usable(found, WS_MAXIMIZE)) return found != nullptr;
  const bool was_minimized = (found->style & WS_MINIMIZE) != 0;
  remember_normal_frame(*found);
  const MINMAXINFO limits = ask_limits(window);
  if (find(window) == nullptr) return false;
  const POINT corner = limits.ptMaxPosition;
  const int left = window_coordinate(corner.x);
  const int top = window_coordinate(corner.y);
  const RECT frame{left, top, left + window_size(limits.ptMaxSize.x),
                   top + window_size(limits.ptMaxSize.y)};
  if (!change_state(window, WS_MAXIMIZE, frame)) return false;
  if (was_minimized) show_owned_windows(window);
  return find(window) != nullptr;
}

bool minimize(HWND window) {
  Window* found = find(window);
  if (!usable(found, WS_MINIMIZE)) return found != nullptr;
  found->maximized_before = (found->style & WS_MAXIMIZE) != 0;
  remember_normal_frame(*found);
  hide_owned_windows(window);
  found = find(window);
  return found != nullptr && change_state(window, WS_MINIMIZE, minimized_frame(*found));
}

bool restore(HWND window) {
  const Window* found = find(window);
  const bool to_maximized =
      found != nullptr && (found->style & WS_MINIMIZE) != 0 && found->maximized_before;
  return to_maximized ? maximize(window) : restore_to_normal(window);
}

bool restore_to_normal(HWND window) {
  Window* found = find(window);
  if (found == nullptr || (found->style & kStates) == 0) return found != nullptr;
  const bool was_minimized = (found->style & WS_MINIMIZE) != 0;
  const RECT frame = std::exchange(found->restored_frame, std::nullopt).value_or(found->frame);
  if (!change_state(window, 0, frame)) return false;
  if (was_minimized) show_owned_windows(window);
  return find(window) != nullptr;
}

void fit_to_screen(System& state) {
  for (const HWND handle : children_of(*state.desktop)) {
    const Window* found = state.find(handle);
    if (found == nullptr || (found->style & kStates) == 0) continue;
    const bool maximized = (found->style & WS_MAXIMIZE) != 0;
    const RECT frame = maximized ? maximized_frame(*found) : minimized_frame(*found);
    MoveWindow(handle, frame.left, frame.top, frame.right - frame.left, frame.bottom - frame.top,
               TRUE);
  }
}

WPARAM size_kind(const Window& window) {
  if ((window.style & WS_MINIMIZE) != 0) return SIZE_MINIMIZED;
  return (window.style & WS_MAXIMIZE) != 0 ? SIZE_MAXIMIZED : SIZE_RESTORED;
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

BOOL IsZoomed(HWND window) {
  const Window* found = checked(window);
  return found != nullptr && (found->style & WS_MAXIMIZE) != 0 ? TRUE : FALSE;
}

BOOL IsIconic(HWND window) {
  const Window* found = checked(window);
  return found != nullptr && (found->style & WS_MINIMIZE) != 0 ? TRUE : FALSE;
}

}  // namespace corvane_system
