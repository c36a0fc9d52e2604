#pragma once
// Update regions: invalidating only records; WM_PAINT is generated while something is recorded.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

enum class Children { by_style, always, never };

// Adds a region (client coordinates) to the window's update region and, as its style says, to its
// children's. Hidden windows and windows with WM_SETREDRAW off record nothing.
void invalidate(Window& window, const Region& region, bool erase,
                Children children = Children::by_style);
// The same for a region that also has to be drawn outside the client area: the frame in it.
void expose(Window& window, const Region& region, bool erase,
            Children children = Children::by_style);
void invalidate_all(Window& window, bool erase);  // with the frame
// Invalidates, with erase, what lies below a screen rectangle in the window's client area: the
// window itself and its children there.
void invalidate_uncovered(Window& parent, const RECT& screen_rect);
void validate(Window& window, const Region& region);
// The update region without the children that a WS_CLIPCHILDREN window does not draw over.
Region to_paint(const Window& window);
// Sends WM_ERASEBKGND for a pending erase; keeps it pending when the handler returns 0.
void erase_now(HWND window);
// Sends WM_PAINT to the window and then to its invalid children.
void update_now(HWND window);
// The window whose WM_PAINT, or whose frame's drawing, is next (parents before children),
// restricted to `within` and its children unless null.
Window* next_to_paint(System& state, HWND within);
bool paints_pending(System& state);
// Whether frame or scroll bars are to be drawn, and can be seen.
bool frame_pending(const Window& window);
// Draws what is pending of them: the frame by WM_NCPAINT, changed scroll bars without a message.
void paint_pending_frame(HWND window);
void send_frame_paint(HWND window);  // WM_NCPAINT, which need not do anything

enum class Area { client, frame };
// The part of the window's surface that shows the area, surface coordinates.
Region visible_region(Window& window, Area area);
// A device context on the area, limited to `clip` (coordinates of the area) unless null.
HDC open_window_dc(Window& window, const Region* clip, Area area);

}  // namespace corvane::system
