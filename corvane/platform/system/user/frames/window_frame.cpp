#include "corvane/platform/system/user/frames/window_frame.h"

#include "corvane/platform/geometry.h"
#include "corvane/platform/system/user/scroll_bars/scroll_bars.h"

namespace corvane::system {
namespace {

constexpr DWORD kFrameStyles = WS_CAPTION | WS_THICKFRAME;
constexpr DWORD kFrameExStyles =
    WS_EX_WINDOWEDGE | WS_EX_DLGMODALFRAME | WS_EX_STATICEDGE | WS_EX_CLIENTEDGE;

}  // namespace

FrameLayout frame_layout(const Window& window, const RECT& outer) {
  if (!framed_natively(window, outer)) return {outer, window.style, window.ex_style};
  return {outer, window.style & ~kFrameStyles, window.ex_style & ~kFrameExStyles};
}

POINT frame_point(const Window& window, POINT screen_point) {
  const RECT frame = frame_on_screen(window);
  return {screen_point.x - frame.left + window.frame.left,
          screen_point.y - frame.top + window.frame.top};
}

void leave_room_for_frame(const Window& window, RECT& rect) {
  rect = frame_layout(window, rect).inside();
  if ((window.style & WS_MINIMIZE) == 0) leave_room_for_bars(window, rect);
}

bool has_non_client_area(const Window& window) {
  return EqualRect(&window.frame, &window.client) == 0;
}

bool framed_natively(const Window& window, const RECT& frame) {
  const System& state = *system();
  return state.display->has_native_frame() && is_top_level(window) && window.owner == nullptr &&
         EqualRect(&frame, &state.desktop->frame) != 0;
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

BOOL AdjustWindowRectEx(LPRECT rect, DWORD style, BOOL, DWORD ex_style) {
  if (rect == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  const FrameMargins margins = FrameLayout({}, style, ex_style).margins();
  *rect = {corvane::subtract_coordinates(rect->left, margins.left),
           corvane::subtract_coordinates(rect->top, margins.top),
           corvane::add_coordinates(rect->right, margins.right),
           corvane::add_coordinates(rect->bottom, margins.bottom)};
  return TRUE;
}

BOOL AdjustWindowRect(LPRECT rect, DWORD style, BOOL menu) {
  return AdjustWindowRectEx(rect, style, menu, 0);
}

}  // namespace corvane_system
