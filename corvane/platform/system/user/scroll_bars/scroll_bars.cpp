#include "corvane/platform/system/user/scroll_bars/scroll_bars.h"

#include <algorithm>
#include <cstddef>

#include "corvane/platform/system/user/painting/painting.h"

namespace corvane::system {
namespace {

// A caller that knows nothing of nTrackPos leaves it out.
constexpr UINT kShortInfo = offsetof(SCROLLINFO, nTrackPos);

bool readable(const SCROLLINFO* info) {
  if (info != nullptr && (info->cbSize == sizeof(SCROLLINFO) || info->cbSize == kShortInfo)) {
    return true;
  }
  SetLastError(ERROR_INVALID_PARAMETER);
  return false;
}

// A standard bar of the window.
BarTarget target_of(HWND window, int bar) {
  Window* found = checked(window);
  if (found == nullptr) return {};
  auto axis = axis_of(bar);
  if (!axis || found->parent == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return {};
  }
  return {found, *axis};
}

// Null, with an error code, for a window that never had this bar.
const ScrollModel* model_of(const BarTarget& target) {
  ScrollBarState& bar = target.bar();
  if (!bar.model && has_bar(*target.window, target.axis)) bar.model.emplace();
  if (!bar.model) SetLastError(ERROR_NO_SCROLLBARS);
  return bar.model ? &*bar.model : nullptr;
}

void change_styles(HWND window, DWORD remove, DWORD add) {
  Window* found = find(window);
  const DWORD wanted = (found->style & ~remove) | add;
  if (wanted == found->style) return;
  found->style = wanted;
  SetWindowPos(window, nullptr, 0, 0, 0, 0,
               SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  found = find(window);
  if (found != nullptr) invalidate(*found, Region(found->client_area()), true);
}

void show_bar(HWND window, ScrollAxis axis, bool shown) {
  change_styles(window, shown ? 0 : style_of(axis), shown ? style_of(axis) : 0);
}

// Range or page have been set: the bar goes, comes, or is greyed.
void reconsider_bar(const BarTarget& target, bool kept_greyed) {
  ScrollBarState& bar = target.bar();
  const bool needed = bar.model->needed();
  bar.disabled = !needed && kept_greyed;
  if (target.window->scroll_control) return;
  if (needed || !kept_greyed) show_bar(target.window->handle, target.axis, needed);
}

int bar_length(const Window& window, ScrollAxis axis) {
  const RECT bar = bar_rect(window, axis);
  return axis == ScrollAxis::vertical ? bar.bottom - bar.top : bar.right - bar.left;
}

}  // namespace

std::optional<ScrollAxis> axis_of(int bar) {
  if (bar == SB_HORZ) return ScrollAxis::horizontal;
  if (bar == SB_VERT) return ScrollAxis::vertical;
  return std::nullopt;
}

void leave_room_for_bars(const Window& window, RECT& rect) {
  if (has_bar(window, ScrollAxis::vertical) && rect.right - rect.left >= kBarThickness) {
    rect.right -= kBarThickness;
  }
  if (has_bar(window, ScrollAxis::horizontal) && rect.bottom - rect.top >= kBarThickness) {
    rect.bottom -= kBarThickness;
  }
}

RECT bar_rect(const Window& window, ScrollAxis axis) {
  if (window.scroll_control) return axis == *window.scroll_control ? window.client_area() : RECT{};
  if (!has_bar(window, axis)) return {};
  const RECT client = window.client_area();
  const RECT bar = axis == ScrollAxis::vertical
                       ? RECT{client.right, 0, client.right + kBarThickness, client.bottom}
                       : RECT{0, client.bottom, client.right, client.bottom + kBarThickness};
  RECT frame = window.frame;
  OffsetRect(&frame, -window.client.left, -window.client.top);
  const bool inside = bar.right <= frame.right && bar.bottom <= frame.bottom;
  return inside && !IsRectEmpty(&bar) ? bar : RECT{};
}

RECT bar_corner(const Window& window) {
  const RECT vertical = bar_rect(window, ScrollAxis::vertical);
  const RECT horizontal = bar_rect(window, ScrollAxis::horizontal);
  if (IsRectEmpty(&vertical) || IsRectEmpty(&horizontal)) return {};
  return {vertical.left, horizontal.top, vertical.right, horizontal.bottom};
}

ScrollLayout bar_layout(const Window& window, ScrollAxis axis) {
  const ScrollBarState& bar = window.bar(axis);
  if (bar.drag) return dragged_bar_layout(window, axis, bar.drag->begin);
  const ScrollModel model = bar.model.value_or(ScrollModel{});
  return scroll_layout(model, bar_length(window, axis), kBarThickness);
}

ScrollLayout dragged_bar_layout(const Window& window, ScrollAxis axis, int thumb_begin) {
  const ScrollModel model = window.bar(axis).model.value_or(ScrollModel{});
  return scroll_layout_dragged(model, bar_length(window, axis), kBarThickness, thumb_begin);
}

void redraw_bar(Window& window, ScrollAxis axis) {
  if (!window.scroll_control) {
    window.bars_due = true;
  } else if (axis == *window.scroll_control) {
    invalidate(window, Region(window.client_area()), false);
  }
}

int set_bar_info(const BarTarget& target, LPCSCROLLINFO info, BOOL redraw) {
  if (!readable(info)) return 0;
  auto& model = target.bar().model;
  if (!model) model.emplace();
  model->change(*info);
  const int position = model->position;
  if (redraw != FALSE) redraw_bar(*target.window, target.axis);
  if ((info->fMask & (SIF_RANGE | SIF_PAGE)) != 0) {
    reconsider_bar(target, (info->fMask & SIF_DISABLENOSCROLL) != 0);
  }
  return position;
}

BOOL get_bar_info(const BarTarget& target, LPSCROLLINFO info) {
  if (!readable(info)) return FALSE;
  const ScrollModel* model = model_of(target);
  if (model == nullptr) return FALSE;
  if ((info->fMask & SIF_RANGE) != 0) {
    info->nMin = model->minimum;
    info->nMax = model->maximum;
  }
  if ((info->fMask & SIF_PAGE) != 0) info->nPage = model->page;
  if ((info->fMask & SIF_POS) != 0) info->nPos = model->position;
  if ((info->fMask & SIF_TRACKPOS) != 0 && info->cbSize == sizeof(SCROLLINFO)) {
    const auto& drag = target.bar().drag;
    info->nTrackPos = drag ? drag->position : model->position;
  }
  return (info->fMask & SIF_ALL) != 0 ? TRUE : FALSE;
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

int SetScrollInfo(HWND window, int bar, LPCSCROLLINFO info, BOOL redraw) {
  if (bar == SB_CTL) {
    const auto parameter = reinterpret_cast<LPARAM>(info);
    return static_cast<int>(SendMessageW(window, SBM_SETSCROLLINFO, redraw, parameter));
  }
  const BarTarget target = target_of(window, bar);
  return target ? set_bar_info(target, info, redraw) : 0;
}

BOOL GetScrollInfo(HWND window, int bar, LPSCROLLINFO info) {
  if (bar == SB_CTL) {
    const auto parameter = reinterpret_cast<LPARAM>(info);
    return SendMessageW(window, SBM_GETSCROLLINFO, 0, parameter) != 0 ? TRUE : FALSE;
  }
  const BarTarget target = target_of(window, bar);
  return target ? get_bar_info(target, info) : FALSE;
}

int SetScrollPos(HWND window, int bar, int position, BOOL redraw) {
  const int previous = GetScrollPos(window, bar);
  const SCROLLINFO info{sizeof(SCROLLINFO), SIF_POS, 0, 0, 0, position, 0};
  SetScrollInfo(window, bar, &info, redraw);
  return previous;
}

int GetScrollPos(HWND window, int bar) {
  if (bar == SB_CTL) return static_cast<int>(SendMessageW(window, SBM_GETPOS, 0, 0));
  const BarTarget target = target_of(window, bar);
  const ScrollModel* model = target ? model_of(target) : nullptr;
  return model == nullptr ? 0 : model->position;
}

BOOL SetScrollRange(HWND window, int bar, int minimum, int maximum, BOOL redraw) {
  const bool known = bar == SB_CTL ? checked(window) != nullptr : bool(target_of(window, bar));
  if (!known) return FALSE;
  const SCROLLINFO info{sizeof(SCROLLINFO), SIF_RANGE, minimum, maximum, 0, 0, 0};
  SetScrollInfo(window, bar, &info, redraw);
  return TRUE;
}

BOOL GetScrollRange(HWND window, int bar, int* minimum, int* maximum) {
  SCROLLINFO info{sizeof(SCROLLINFO), SIF_RANGE, 0, 0, 0, 0, 0};
  const BOOL found = GetScrollInfo(window, bar, &info);
  if (minimum != nullptr) *minimum = info.nMin;
  if (maximum != nullptr) *maximum = info.nMax;
  return found;
}

BOOL ShowScrollBar(HWND window, int bar, BOOL show) {
  if (bar == SB_CTL) {
    if (checked(window) == nullptr) return FALSE;
    ShowWindow(window, show != FALSE ? SW_SHOW : SW_HIDE);
    return TRUE;
  }
  const bool both = bar == SB_BOTH;
  const BarTarget target = target_of(window, both ? SB_VERT : bar);
  if (!target) return FALSE;
  const DWORD styles = both ? WS_VSCROLL | WS_HSCROLL : style_of(target.axis);
  for (const ScrollAxis axis : {ScrollAxis::horizontal, ScrollAxis::vertical}) {
    auto& model = target.window->bar(axis).model;
    if ((styles & style_of(axis)) != 0 && !model) model.emplace();
  }
  change_styles(window, show != FALSE ? 0 : styles, show != FALSE ? styles : 0);
  return TRUE;
}

}  // namespace corvane_system
