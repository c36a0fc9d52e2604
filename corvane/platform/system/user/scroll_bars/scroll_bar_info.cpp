// GetScrollBarInfo: where a standard bar's parts are, and in what state.
#include <iterator>

#include "corvane/platform/system/user/scroll_bars/scroll_bars.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

// Of rgstate, from its first member on; the bar itself has none.
constexpr ScrollPart kParts[] = {ScrollPart::none,         ScrollPart::line_back,
                                 ScrollPart::page_back,    ScrollPart::thumb,
                                 ScrollPart::page_forward, ScrollPart::line_forward};

std::optional<ScrollAxis> axis_of_object(LONG object) {
  if (object == OBJID_VSCROLL) return ScrollAxis::vertical;
  if (object == OBJID_HSCROLL) return ScrollAxis::horizontal;
  return std::nullopt;
}

DWORD state_of_bar(const Window& window, ScrollAxis axis) {
  const bool shown = has_bar(window, axis);
  const bool needed = window.bar(axis).model->needed();
  if (shown) return needed ? 0 : STATE_SYSTEM_UNAVAILABLE;
  return STATE_SYSTEM_INVISIBLE | (needed ? 0 : STATE_SYSTEM_OFFSCREEN);
}

}  // namespace

BOOL GetScrollBarInfo(HWND window, LONG object, SCROLLBARINFO* info) {
  const Window* const found = checked(window);
  if (found == nullptr) return FALSE;
  const auto axis = axis_of_object(object);
  if (!axis || info == nullptr || info->cbSize != sizeof(SCROLLBARINFO)) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  const ScrollBarState& bar = found->bar(*axis);
  if (!bar.model) {
    SetLastError(ERROR_NO_SCROLLBARS);
    return FALSE;
  }
  const ScrollLayout layout = bar_layout(*found, *axis);
  const POINT origin = client_origin(*found);
  info->rcScrollBar = bar_rect(*found, *axis);
  OffsetRect(&info->rcScrollBar, origin.x, origin.y);
  info->dxyLineButton = layout.line_back.length();
  info->xyThumbTop = layout.thumb.begin;
  info->xyThumbBottom = layout.thumb.end;
  info->reserved = 0;
  for (std::size_t at = 0; at < std::size(kParts); ++at) {
    const bool pressed = kParts[at] != ScrollPart::none && kParts[at] == bar.pressed;
    info->rgstate[at] = pressed ? STATE_SYSTEM_PRESSED : 0;
  }
  info->rgstate[0] = state_of_bar(*found, *axis);
  return TRUE;
}

}  // namespace corvane_system
