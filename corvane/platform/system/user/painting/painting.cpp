#include "corvane/platform/system/user/painting/painting.h"

#include <algorithm>

#include "corvane/platform/system/user/frames/window_frame.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/scroll_bars/scroll_painting.h"

namespace corvane::system {
namespace {

// A region of many small pieces costs more than painting its bounds.
constexpr int kMaxPieces = 64;

// A window whose pixels the program supplies is never asked to paint, nor are the children in it:
// what they draw would be lost.
bool records_updates(const Window& window) {
  bool own_pixels = false;
  for (const Window* it = &window; it->parent != nullptr; it = it->parent) {
    if (!it->redraw || (!own_pixels && it->layered.content)) return false;
    own_pixels = own_pixels || it->surface != nullptr;
  }
  return shown_on_screen(window);
}

void add_to_update(Window& window, const Region& region, bool erase) {
  window.update.unite(region);
  if (window.update.count() > kMaxPieces) window.update = Region(window.update.bounds());
  window.needs_paint = true;
  window.needs_erase = window.needs_erase || erase;
}

void invalidate_child(Window& child, Region region, bool erase, Children children) {
  if ((child.style & WS_VISIBLE) == 0) return;
  region.intersect(child.frame);
  if (region.empty()) return;
  region.translate(-child.client.left, -child.client.top);
  expose(child, region, erase, children);
}

bool touches_frame(const Window& window, const Region& region) {
  if (!has_non_client_area(window)) return false;
  RECT frame = window.frame;
  OffsetRect(&frame, -window.client.left, -window.client.top);
  Region around(frame);
  around.subtract(window.client_area());
  around.intersect(region);
  return !around.empty();
}

Window* first_invalid(Window& window) {
  if (window.needs_paint || frame_pending(window)) return &window;
  for (Window* child : window.children) {
    if (Window* found = first_invalid(*child)) return found;
  }
  return nullptr;
}

}  // namespace

void invalidate(Window& window, const Region& region, bool erase, Children children) {
  if (window.parent == nullptr || !records_updates(window)) return;
  Region own = region;
  own.intersect(window.client_area());
  if (own.empty()) return;
  const bool clips_children = (window.style & WS_CLIPCHILDREN) != 0;
  const bool descend =
      children == Children::always || (children == Children::by_style && !clips_children);
  if (descend) {
    for (Window* child : window.children) {
      invalidate_child(*child, own, true, children);
    }
  }
  if (clips_children) {
    for (const Window* child : window.children) {
      if ((child->style & WS_VISIBLE) != 0) own.subtract(child->frame);
    }
  }
  add_to_update(window, own, erase);
}

void expose(Window& window, const Region& region, bool erase, Children children) {
  window.frame_due = window.frame_due || touches_frame(window, region);
  invalidate(window, region, erase, children);
}

void invalidate_all(Window& window, bool erase) {
  window.frame_due = has_non_client_area(window);
  invalidate(window, Region(window.client_area()), erase, Children::always);
}

void invalidate_uncovered(Window& parent, const RECT& screen_rect) {
  if (parent.parent == nullptr) return;
  const POINT origin = client_origin(parent);
  RECT local = screen_rect;
  OffsetRect(&local, -origin.x, -origin.y);
  // Also the siblings below: whether the parent clips its children or not, somebody draws there.
  invalidate(parent, Region(local), true, Children::always);
}

Region to_paint(const Window& window) {
  Region region = window.update;
  if ((window.style & WS_CLIPCHILDREN) == 0) return region;
  for (const Window* child : window.children) {
    if ((child->style & WS_VISIBLE) != 0) region.subtract(child->frame);
  }
  return region;
}

void validate(Window& window, const Region& region) {
  window.update.subtract(region);
  if (!window.update.empty()) return;
  window.needs_paint = false;
  window.needs_erase = false;
}

void erase_now(HWND window) {
  Window* found = find(window);
  if (found == nullptr || !found->needs_erase || found->update.empty()) return;
  System& state = *system();
  HDC dc = open_window_dc(*found, &found->update, Area::client);
  const LRESULT erased = send(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc));
  state.gdi.close_dc(dc);
  found = find(window);
  if (found != nullptr) found->needs_erase = found->needs_erase && erased == 0;
}

void update_now(HWND window) {
  Window* found = find(window);
  if (found == nullptr) return;
  paint_pending_frame(window);
  found = find(window);
  if (found != nullptr && found->needs_paint) send(window, WM_PAINT);
  found = find(window);
  if (found == nullptr) return;
  for (HWND child : children_of(*found)) update_now(child);
}

Window* next_to_paint(System& state, HWND within) {
  if (within != nullptr) {
    Window* window = state.find(within);
    return window == nullptr ? nullptr : first_invalid(*window);
  }
  for (Window* window : state.desktop->children) {
    if (Window* found = first_invalid(*window)) return found;
  }
  return nullptr;
}

bool frame_pending(const Window& window) {
  return (window.bars_due || window.frame_due) && records_updates(window);
}

void paint_pending_frame(HWND window) {
  Window* found = find(window);
  if (found == nullptr || !records_updates(*found)) return;
  if (found->frame_due) send_frame_paint(window);
  found = find(window);
  if (found != nullptr && found->bars_due) paint_bars(*found);
}

void send_frame_paint(HWND window) {
  constexpr WPARAM kWholeFrame = 1;
  if (Window* found = find(window)) found->frame_due = false;
  send(window, WM_NCPAINT, kWholeFrame, 0);
}

bool paints_pending(System& state) { return next_to_paint(state, nullptr) != nullptr; }

Region visible_region(Window& window, Area area) {
  if (window.parent == nullptr || !records_updates(window)) return Region();
  Region region(area == Area::frame ? frame_on_screen(window) : client_on_screen(window));
  Window* owner = surface_owner(window);
  for (Window* it = &window; it != owner; it = it->parent) {
    region.intersect(client_on_screen(*it->parent));
    if ((it->style & WS_CLIPSIBLINGS) == 0) continue;
    for (const Window* sibling : it->parent->children) {
      if (sibling == it) break;
      if ((sibling->style & WS_VISIBLE) != 0) region.subtract(frame_on_screen(*sibling));
    }
  }
  if ((window.style & WS_CLIPCHILDREN) != 0) {
    for (const Window* child : window.children) {
      if ((child->style & WS_VISIBLE) != 0) region.subtract(frame_on_screen(*child));
    }
  }
  const RECT base = frame_on_screen(*owner);
  region.translate(-base.left, -base.top);
  return region;
}

HDC open_window_dc(Window& window, const Region* clip, Area area) {
  System& state = *system();
  Window* owner = surface_owner(window);
  if (owner->surface == nullptr) return nullptr;
  const RECT base = frame_on_screen(*owner);
  const RECT drawn = area == Area::frame ? frame_on_screen(window) : client_on_screen(window);
  const POINT origin{drawn.left - base.left, drawn.top - base.top};
  Region visible = visible_region(window, area);
  if (clip != nullptr) {
    Region limited = *clip;
    limited.translate(origin.x, origin.y);
    visible.intersect(limited);
  }
  return state.gdi.open_dc(owner->surface, origin, visible);
}

}  // namespace corvane::system
