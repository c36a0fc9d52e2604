// BeginPaint, InvalidateRect and their family.
#include <algorithm>

#include "corvane/platform/system/user/frames/window_frame.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/painting/painting.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

Region region_or_client(const Window& window, const RECT* rect) {
  return rect == nullptr ? Region(window.client_area()) : Region(*rect);
}

// Takes the update region and erases it; true when the background is erased.
bool begin_update(HWND window, Region& region) {
  Window* found = find(window);
  region = to_paint(*found);
  const bool erase = found->needs_erase;
  found->update.clear();
  found->needs_paint = false;
  found->needs_erase = false;
  if (!erase) return true;
  System& state = *corvane::system::system();
  HDC dc = open_window_dc(*found, &region, Area::client);
  const LRESULT erased = send(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc));
  state.gdi.close_dc(dc);
  return erased != 0;
}

}  // namespace

HDC BeginPaint(HWND window, LPPAINTSTRUCT paint) {
  if (paint == nullptr || checked(window) == nullptr) return nullptr;
  *paint = PAINTSTRUCT{};
  Region region;
  const bool erased = begin_update(window, region);
  Window* found = find(window);
  if (found == nullptr) return nullptr;
  paint->hdc = open_window_dc(*found, &region, Area::client);
  paint->fErase = erased ? FALSE : TRUE;
  paint->rcPaint = region.bounds();
  return paint->hdc;
}

BOOL EndPaint(HWND window, const PAINTSTRUCT* paint) {
  System* state = corvane::system::system();
  if (state == nullptr || paint == nullptr) return FALSE;
  state->gdi.close_dc(paint->hdc);
  return checked(window) != nullptr ? TRUE : FALSE;
}

HDC GetDC(HWND window) {
  System* state = corvane::system::system();
  if (state == nullptr) return nullptr;
  if (window == nullptr) {
    // The screen: a context for measuring and for compatible bitmaps; nothing can be drawn on it.
    auto nothing = std::make_shared<Surface>(state->frame.width(), state->frame.height());
    return state->gdi.open_dc(nothing, {0, 0}, Region());
  }
  Window* found = checked(window);
  return found == nullptr ? nullptr : open_window_dc(*found, nullptr, Area::client);
}

HDC GetWindowDC(HWND window) {
  if (window == nullptr) return GetDC(nullptr);
  Window* found = checked(window);
  return found == nullptr ? nullptr : open_window_dc(*found, nullptr, Area::frame);
}

int ReleaseDC(HWND, HDC dc) {
  System* state = corvane::system::system();
  return state != nullptr && state->gdi.close_dc(dc) ? 1 : 0;
}

BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase) {
  System* state = corvane::system::system();
  if (state != nullptr && window == nullptr) {
    for (Window* top : state->desktop->children) invalidate_all(*top, true);
    return TRUE;
  }
  Window* found = checked(window);
  if (found == nullptr) return FALSE;
  invalidate(*found, region_or_client(*found, rect), erase != FALSE);
  return TRUE;
}

BOOL ValidateRect(HWND window, const RECT* rect) {
  Window* found = checked(window);
  if (found == nullptr) return FALSE;
  validate(*found, region_or_client(*found, rect));
  return TRUE;
}

BOOL RedrawWindow(HWND window, const RECT* rect, HRGN, UINT flags) {
  Window* found = checked(window);
  if (found == nullptr) return FALSE;
  const Region region = region_or_client(*found, rect);
  const Children children = (flags & RDW_ALLCHILDREN) != 0  ? Children::always
                            : (flags & RDW_NOCHILDREN) != 0 ? Children::never
                                                            : Children::by_style;
  if ((flags & RDW_INVALIDATE) != 0) {
    invalidate(*found, region, (flags & RDW_ERASE) != 0, children);
  }
  if ((flags & RDW_FRAME) != 0 && (flags & RDW_INVALIDATE) != 0) {
    found->frame_due = has_non_client_area(*found);
  }
  if ((flags & RDW_VALIDATE) != 0) validate(*found, region);
  if ((flags & RDW_NOERASE) != 0) found->needs_erase = false;
  if ((flags & RDW_UPDATENOW) != 0) {
    update_now(window);
  } else if ((flags & RDW_ERASENOW) != 0) {
    erase_now(window);
  }
  return TRUE;
}

BOOL UpdateWindow(HWND window) {
  if (checked(window) == nullptr) return FALSE;
  update_now(window);
  return TRUE;
}

BOOL GetUpdateRect(HWND window, LPRECT rect, BOOL erase) {
  Window* found = checked(window);
  if (found == nullptr) return FALSE;
  if (erase != FALSE) erase_now(window);
  found = find(window);
  if (found == nullptr) return FALSE;
  const Region region = to_paint(*found);
  if (rect != nullptr) *rect = region.bounds();
  return !region.empty() ? TRUE : FALSE;
}

}  // namespace corvane_system
