#include "corvane/platform/system/user/windows/window_geometry.h"

#include <algorithm>
#include <new>

#include "corvane/platform/system/user/frames/window_frame.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/painting/painting.h"

namespace corvane::system {
namespace {

RECT valid(RECT rect) {
  rect.right = std::max(rect.right, rect.left);
  rect.bottom = std::max(rect.bottom, rect.top);
  return rect;
}

bool same_size(const RECT& a, const RECT& b) {
  return a.right - a.left == b.right - b.left && a.bottom - a.top == b.bottom - b.top;
}

// The window's frame as far as its parents show it, in surface coordinates.
Region shown_frame(Window& window) {
  if (!shown_on_screen(window)) return Region();
  Window* owner = surface_owner(window);
  Region region(frame_on_screen(window));
  for (Window* it = &window; it != owner; it = it->parent) {
    region.intersect(client_on_screen(*it->parent));
  }
  const RECT base = frame_on_screen(*owner);
  region.translate(-base.left, -base.top);
  return region;
}

void copy_pixels(Surface& surface, const Region& target, int dx, int dy) {
  for (const RECT& rect : target.rects()) {
    const int width = rect.right - rect.left;
    std::vector<Pixel> block;
    for (int y = rect.top; y < rect.bottom; ++y) {
      const Pixel* from = surface.row(y - dy) + (rect.left - dx);
      block.insert(block.end(), from, from + width);
    }
    for (int y = rect.top; y < rect.bottom; ++y) {
      auto from = block.begin() + static_cast<std::ptrdiff_t>(y - rect.top) * width;
      std::copy(from, from + width, surface.row(y) + rect.left);
    }
    surface.mark(rect);
  }
}

// Where the client area begins in the window.
POINT client_offset(const RECT& frame, const RECT& client) {
  return {client.left - frame.left, client.top - frame.top};
}

// What a changed size leaves to be painted: everything, or the strips that are new.
Region newly_needed(const Window& window, const RECT& old_client) {
  const RECT now = window.client_area();
  Region region(now);
  const int old_width = old_client.right - old_client.left;
  const int old_height = old_client.bottom - old_client.top;
  const UINT style = window.window_class->style;
  const bool all = ((style & CS_HREDRAW) != 0 && old_width != now.right) ||
                   ((style & CS_VREDRAW) != 0 && old_height != now.bottom);
  if (!all) region.subtract(RECT{0, 0, old_width, old_height});
  return region;
}

void resize_surface(Window& window) {
  if (window.surface == nullptr || window.layered.content) return;
  if (window.surface->width() == window.width() && window.surface->height() == window.height()) {
    return;
  }
  // A device context may still be open on the old pixels: it keeps them alive.
  try {
    window.surface->resize(window.width(), window.height());
  } catch (const std::bad_alloc&) {
    *window.surface = Surface(window.width(), window.height());
    invalidate_all(window, true);
  }
}

void move_child_pixels(Window& window, const Region& old_shown, POINT travel) {
  Window* owner = surface_owner(window);
  const Region now_shown = shown_frame(window);
  Region copied = old_shown;
  copied.translate(travel.x, travel.y);
  copied.intersect(now_shown);
  if (owner->surface != nullptr && !copied.empty()) {
    copy_pixels(*owner->surface, copied, travel.x, travel.y);
  }
  Region exposed = now_shown;
  exposed.subtract(copied);
  if (exposed.empty()) return;
  const RECT base = frame_on_screen(*owner);
  const POINT origin = client_origin(window);
  exposed.translate(base.left - origin.x, base.top - origin.y);
  expose(window, exposed, true, Children::always);
}

RECT ask_client(HWND window, const RECT& frame, WINDOWPOS* position) {
  Window* found = find(window);
  NCCALCSIZE_PARAMS params{{frame, found->frame, found->client}, position};
  send(window, WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&params));
  return valid(params.rgrc[0]);
}

}  // namespace

void calculate_first_client(HWND window) {
  Window* found = find(window);
  RECT rect = frame_on_screen(*found);
  const RECT screen = rect;
  send(window, WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&rect));
  found = find(window);
  if (found == nullptr) return;
  OffsetRect(&rect, found->frame.left - screen.left, found->frame.top - screen.top);
  found->client = valid(rect);
}

void damage_frame(System& state, const Window& window) {
  state.frame_damage.unite(frame_on_screen(window));
}

Moved apply_move(HWND window, const Move& move, WINDOWPOS* position) {
  Window* found = find(window);
  System& state = *system();
  const RECT old_frame = found->frame;
  const RECT old_client = found->client;
  const RECT old_screen = frame_on_screen(*found);
  const bool resized = !same_size(old_frame, move.frame);
  const bool measures = resized || move.recalculate ||
                        framed_natively(*found, old_frame) != framed_natively(*found, move.frame);
  RECT client = old_client;
  if (measures) {
    client = ask_client(window, move.frame, position);
    found = find(window);
    if (found == nullptr) return {};
  } else {
    OffsetRect(&client, move.frame.left - old_frame.left, move.frame.top - old_frame.top);
  }
  const bool own_surface = found->surface != nullptr;
  const Region old_shown = shown_frame(*found);
  found->frame = move.frame;
  found->client = client;
  Moved moved{client.left != old_client.left || client.top != old_client.top,
              !same_size(client, old_client)};
  if (own_surface) {
    if (shown_on_screen(*found)) {
      state.frame_damage.unite(old_screen);
      damage_frame(state, *found);
    }
    resize_surface(*found);
  }
  if (!move.redraw) return moved;
  if (!own_surface) {
    const POINT travel{move.frame.left - old_frame.left, move.frame.top - old_frame.top};
    move_child_pixels(*found, old_shown, travel);
    Region uncovered(old_screen);
    uncovered.subtract(frame_on_screen(*found));
    for (const RECT& rect : uncovered.rects()) {
      if (shown_on_screen(*found)) invalidate_uncovered(*found->parent, rect);
    }
  }
  found->frame_due = found->frame_due || (measures && has_non_client_area(*found));
  const POINT before = client_offset(old_frame, old_client);
  const POINT after = client_offset(found->frame, found->client);
  if (before.x != after.x || before.y != after.y) {
    // The pixels lie where they lay in the window.
    found->update.intersect(found->client_area());
    invalidate(*found, Region(found->client_area()), true, Children::always);
  } else if (moved.client_resized) {
    found->update.intersect(found->client_area());
    invalidate(*found, newly_needed(*found, old_client), true);
  }
  return moved;
}

LPARAM client_size_lparam(const Window& window) {
  const RECT area = window.client_area();
  return MAKELPARAM(static_cast<DWORD_PTR>(area.right), static_cast<DWORD_PTR>(area.bottom));
}

LPARAM client_position_lparam(const Window& window) {
  return MAKELPARAM(static_cast<DWORD_PTR>(static_cast<WORD>(window.client.left)),
                    static_cast<DWORD_PTR>(static_cast<WORD>(window.client.top)));
}

}  // namespace corvane::system
