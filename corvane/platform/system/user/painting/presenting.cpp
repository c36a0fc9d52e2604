#include "corvane/platform/system/user/painting/presenting.h"

#include <algorithm>

#include "corvane/platform/system/compositor/compositor.h"
#include "corvane/platform/system/user/painting/painting.h"

namespace corvane::system {
namespace {

constexpr Pixel kDesktopColor = 0x00101418;
constexpr std::uint64_t kMaxPresentInterval = 16;  // milliseconds

Layer layer_of(const Window& window) {
  const RECT frame = frame_on_screen(window);
  Layer layer;
  layer.surface = window.surface;
  layer.origin = {frame.left, frame.top};
  layer.clip = frame;
  if (!window.is_layered()) return layer;
  layer.keyed = window.layered.keyed;
  layer.key = pixel_of(window.layered.key);
  layer.alpha = window.layered.alpha;
  layer.pixel_alpha = window.layered.pixel_alpha;
  return layer;
}

bool shows_something(const Window& window) {
  if ((window.style & WS_VISIBLE) == 0) return false;
  return !window.is_layered() || window.layered.attributes || window.layered.content;
}

// A window and then, above it, the layered windows among its children.
void collect_layers(const Window& window, const RECT& clip, std::vector<Layer>& layers) {
  if (!shows_something(window)) return;
  RECT inner = clip;
  if (window.surface != nullptr) {
    Layer layer = layer_of(window);
    if (!IntersectRect(&layer.clip, &layer.clip, &clip)) return;
    layers.push_back(layer);
  }
  const RECT client = client_on_screen(window);
  if (!IntersectRect(&inner, &inner, &client)) return;
  for (auto it = window.children.rbegin(); it != window.children.rend(); ++it) {
    collect_layers(**it, inner, layers);
  }
}

void collect_marks(Window& window, Region& damage) {
  if (window.surface != nullptr) {
    Region marks = window.surface->take_marks();
    if (shows_something(window) && !marks.empty() && shown_on_screen(window)) {
      const RECT frame = frame_on_screen(window);
      marks.translate(frame.left, frame.top);
      damage.unite(marks);
    }
  }
  for (Window* child : window.children) collect_marks(*child, damage);
}

}  // namespace

Region compose_damage(System& state) {
  Region damage = std::move(state.frame_damage);
  state.frame_damage = Region();
  for (Window* top : state.desktop->children) collect_marks(*top, damage);
  damage.intersect(state.frame.rect());
  if (damage.empty()) return damage;
  std::vector<Layer> layers;
  const auto& tops = state.desktop->children;
  for (auto it = tops.rbegin(); it != tops.rend(); ++it) {
    collect_layers(**it, state.frame.rect(), layers);
  }
  compose(state.frame, damage, layers, kDesktopColor);
  return damage;
}

namespace {

// A window that covers the whole monitor takes the native window with it.
void follow_full_screen(System& state) {
  const RECT monitor = monitor_rect(state);
  const auto& tops = state.desktop->children;
  const bool full = std::any_of(tops.begin(), tops.end(), [&](const Window* window) {
    return (window->style & WS_VISIBLE) != 0 && EqualRect(&window->frame, &monitor) != 0;
  });
  if (full == state.full_screen || (full && EqualRect(&state.work_area, &monitor) != 0)) return;
  state.full_screen = full;
  state.display->set_full_screen(full);
}

}  // namespace

void present_now(System& state) {
  state.last_present = state.now();
  if (!state.display_shown) {
    const auto& tops = state.desktop->children;
    const bool any = std::any_of(tops.begin(), tops.end(), [](const Window* window) {
      return (window->style & WS_VISIBLE) != 0;
    });
    if (!any) return;
    state.display_shown = true;
    state.display->show();
  }
  const Region damage = compose_damage(state);
  if (!damage.empty()) state.display->present(state.frame, damage);
  follow_full_screen(state);
}

void present_if_late(System& state) {
  if (state.now() - state.last_present < kMaxPresentInterval) return;
  if (!paints_pending(state)) present_now(state);
}

}  // namespace corvane::system
