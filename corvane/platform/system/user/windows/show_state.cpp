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

// The places at the foot of the screen or the parent, from the left and then upwards.
class MinimizedPlaces {
 public:
  explicit MinimizedPlaces(const RECT& area)
      : bottom_(area.bottom), columns_(std::max<int>(1, area.right / kMinimizedWidth)) {}

  RECT frame_at(int place) const {
    const int left = place % columns_ * kMinimizedWidth;
    const int bottom = bottom_ - place / columns_ * kMinimizedHeight;
    return {left, bottom - kMinimizedHeight, left + kMinimizedWidth, bottom};
  }

  // Marks those of the first ones that the frame touches.
  void take(const RECT& frame, std::vector<bool>& taken) const {
    const int first_row = std::max(0, bottom_ - frame.bottom) / kMinimizedHeight;
    const int first_column = std::max<int>(0, frame.left) / kMinimizedWidth;
    const int count = static_cast<int>(taken.size());
    for (int row = first_row; row < count && bottom_ - row * kMinimizedHeight > frame.top; ++row) {
      for (int column = first_column; column < columns_; ++column) {
        const std::int64_t place = std::int64_t{row} * columns_ + column;
        if (column * kMinimizedWidth >= frame.right || place >= count) break;
        taken[static_cast<std::size_t>(place)] = true;
      }
    }
  }

 private:
  int bottom_;
  int columns_;
};

// The first free place.
RECT minimized_frame(const Window& window) {
  const auto& siblings = window.parent->children;
  const MinimizedPlaces places(window.parent->client_area());
  std::vector<bool> taken(4 * siblings.size());  // a caption touches four places at most
  for (const Window* other : siblings) {
    const bool counts = other != &window && (other->style & WS_MINIMIZE) != 0;
    if (counts) places.take(other->frame, taken);
  }
  const auto free = std::ranges::find(taken, false);
  return places.frame_at(static_cast<int>(free - taken.begin()));
}

// The style is changed first: the window measures and draws itself as what it becomes. It stays
// what it was where no surface can hold the new frame. False: the window is gone.
bool change_state(HWND window, DWORD state_style, const RECT& frame) {
  Window* found = find(window);
  const DWORD before = found->style & kStates;
  found->style = (found->style & ~kStates) | state_style;
  const BOOL changed =
      SetWindowPos(window, nullptr, frame.left, frame.top, frame.right - frame.left,
                   frame.bottom - frame.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  found = find(window);
  if (found != nullptr && changed == FALSE) found->style = (found->style & ~kStates) | before;
  return found != nullptr;
}

// Unless the handlers of others have changed its state meanwhile.
void move_if(HWND window, DWORD state_style, const RECT& frame) {
  const Window* found = find(window);
  if (found == nullptr || (found->style & state_style) == 0) return;
  MoveWindow(window, frame.left, frame.top, frame.right - frame.left, frame.bottom - frame.top,
             TRUE);
}

// Where its limits have it maximized. The window may be gone afterwards.
RECT ask_maximized_frame(HWND window) {
  const MINMAXINFO limits = ask_limits(window);
  const int left = window_coordinate(limits.ptMaxPosition.x);
  const int top = window_coordinate(limits.ptMaxPosition.y);
  return {left, top, left + window_size(limits.ptMaxSize.x), top + window_size(limits.ptMaxSize.y)};
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
  const RECT frame = ask_maximized_frame(window);
  if (find(window) == nullptr || !change_state(window, WS_MAXIMIZE, frame)) return false;
  if (was_minimized && IsZoomed(window) != FALSE) show_owned_windows(window);
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
  std::vector<const Window*> minimized;
  std::vector<HWND> maximized;
  for (const Window* child : state.desktop->children) {
    if ((child->style & WS_MINIMIZE) != 0) minimized.push_back(child);
    if ((child->style & kStates) == WS_MAXIMIZE) maximized.push_back(child->handle);
  }
  // In the order in which they stand.
  std::ranges::stable_sort(minimized, [](const Window* a, const Window* b) {
    return std::pair(-a->frame.bottom, a->frame.left) < std::pair(-b->frame.bottom, b->frame.left);
  });
  std::vector<HWND> handles;
  handles.reserve(minimized.size());
  for (const Window* each : minimized) handles.push_back(each->handle);
  const MinimizedPlaces places(state.desktop->client_area());
  int place = 0;
  for (const HWND handle : handles) move_if(handle, WS_MINIMIZE, places.frame_at(place++));
  for (const HWND handle : maximized) move_if(handle, WS_MAXIMIZE, ask_maximized_frame(handle));
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
