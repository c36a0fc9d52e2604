#include "corvane/platform/system/user/input/hit_test.h"

#include <vector>

#include "corvane/platform/system/user/messages/send_message.h"

namespace corvane::system {
namespace {

constexpr Pixel kColorBits = 0x00FFFFFF;

bool holds(const Window& window, POINT point) {
  if ((window.style & WS_VISIBLE) == 0) return false;
  const RECT rect = frame_on_screen(window);
  return (PtInRect(&rect, point) != 0) && !lets_mouse_through(window, point);
}

// Appends the windows at the point, the deepest first, then its parents.
void collect(const Window& window, POINT point, std::vector<HWND>& candidates) {
  const RECT client = client_on_screen(window);
  if (PtInRect(&client, point)) {
    for (const Window* child : window.children) {
      if (!holds(*child, point)) continue;
      if ((child->style & WS_DISABLED) != 0) break;
      collect(*child, point, candidates);
    }
  }
  candidates.push_back(window.handle);
}

Hit ask(const std::vector<HWND>& candidates, POINT point) {
  for (HWND window : candidates) {
    if (find(window) == nullptr) continue;
    const int code = static_cast<int>(send(window, WM_NCHITTEST, 0, packed(point)));
    if (code != HTTRANSPARENT && find(window) != nullptr) return {window, code};
  }
  return {};
}

}  // namespace

bool lets_mouse_through(const Window& window, POINT screen_point) {
  if (!window.is_layered()) return false;
  const LayeredState& layered = window.layered;
  if ((window.ex_style & WS_EX_TRANSPARENT) != 0) return true;
  if (!layered.attributes && !layered.content) return true;
  if (layered.alpha == 0 || window.surface == nullptr) return true;
  const RECT frame = frame_on_screen(window);
  const Pixel pixel = window.surface->at(screen_point.x - frame.left, screen_point.y - frame.top);
  if (layered.keyed && (pixel & kColorBits) == pixel_of(layered.key)) return true;
  return layered.pixel_alpha && (pixel >> 24) == 0;
}

Hit hit_test(POINT point, DisabledTops disabled_tops) {
  System* state = system();
  if (state == nullptr) return {};
  for (HWND handle : children_of(*state->desktop)) {
    Window* top = state->find(handle);
    if (top == nullptr || !holds(*top, point)) continue;
    if ((top->style & WS_DISABLED) != 0) {
      if (disabled_tops == DisabledTops::swallow) return {nullptr, HTERROR};
      continue;
    }
    std::vector<HWND> candidates;
    collect(*top, point, candidates);
    Hit hit = ask(candidates, point);
    if (hit.window != nullptr) return hit;
  }
  return {};
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

HWND WindowFromPoint(POINT screen_point) {
  return hit_test(screen_point, DisabledTops::skip).window;
}

HWND ChildWindowFromPoint(HWND parent, POINT client_point) {
  Window* found = checked(parent);
  if (found == nullptr) return nullptr;
  const RECT area = found->client_area();
  if (!PtInRect(&area, client_point)) return nullptr;
  for (const Window* child : found->children) {
    if (PtInRect(&child->frame, client_point)) return child->handle;
  }
  return parent;
}

}  // namespace corvane_system
