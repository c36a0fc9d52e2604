#include "corvane/platform/system/display/sdl/wayland_presenter.h"

#include <SDL.h>
#include <SDL_syswm.h>
#include <wayland-client.h>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace corvane::system {

namespace {

void on_global(void* found, wl_registry* registry, std::uint32_t name, const char* interface,
               std::uint32_t /*version*/) {
  auto& memory = *static_cast<wl_shm**>(found);
  if (memory != nullptr || std::string_view(interface) != wl_shm_interface.name) return;
  memory = static_cast<wl_shm*>(wl_registry_bind(registry, name, &wl_shm_interface, 1));
}
void on_global_remove(void*, wl_registry*, std::uint32_t) {}

// The registry is read on a queue of its own, so that none of SDL's events is handled here. What
// comes of it later (releases of buffers) is for SDL's queue: SDL sleeps on that one.
wl_shm* shared_memory_of(wl_display* display) {
  wl_event_queue* const queue = wl_display_create_queue(display);
  auto* const queued = static_cast<wl_display*>(wl_proxy_create_wrapper(display));
  wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(queued), queue);
  wl_registry* const registry = wl_display_get_registry(queued);
  wl_proxy_wrapper_destroy(queued);
  wl_shm* memory = nullptr;
  static constexpr wl_registry_listener kListener{&on_global, &on_global_remove};
  wl_registry_add_listener(registry, &kListener, static_cast<void*>(&memory));
  wl_display_roundtrip_queue(display, queue);
  if (memory != nullptr) wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(memory), nullptr);
  wl_registry_destroy(registry);
  wl_event_queue_destroy(queue);
  return memory;
}

std::size_t bytes_of(const RECT& rect) {
  return static_cast<std::size_t>(rect.right - rect.left) * sizeof(Pixel);
}

void copy(SharedBuffer& target, SharedBuffer& source, const Region& region) {
  for (const RECT& rect : region.rects()) {
    for (int y = rect.top; y < rect.bottom; ++y) {
      std::memcpy(target.row(y) + rect.left, source.row(y) + rect.left, bytes_of(rect));
    }
  }
}

// `row_of(rect, y)` is where the pixels of row y go.
template <typename RowOf>
void copy_frame(const Surface& frame, const Region& region, const RowOf& row_of) {
  for (const RECT& rect : region.rects()) {
    for (int y = rect.top; y < rect.bottom; ++y) {
      Pixel* const target = row_of(rect, y) + rect.left;
      if (const Pixel* const source = frame.row_if_stored(y)) {
        std::memcpy(target, source + rect.left, bytes_of(rect));
      } else {
        std::fill_n(target, rect.right - rect.left, frame.uniform_row(y));
      }
    }
  }
}

void tell_damage(wl_surface* surface, const Region& damage) {
  const bool in_pixels = wl_surface_get_version(surface) >= WL_SURFACE_DAMAGE_BUFFER_SINCE_VERSION;
  const auto tell = in_pixels ? &wl_surface_damage_buffer : &wl_surface_damage;
  for (const RECT& rect : damage.rects()) {
    tell(surface, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
  }
}

}  // namespace

std::unique_ptr<Presenter> WaylandPresenter::open(SDL_Window* window) {
#ifdef SDL_VIDEO_DRIVER_WAYLAND
  SDL_SysWMinfo info;
  SDL_VERSION(&info.version);
  if (!SDL_GetWindowWMInfo(window, &info) || info.subsystem != SDL_SYSWM_WAYLAND) return nullptr;
  wl_shm* const memory = shared_memory_of(info.info.wl.display);
  if (memory == nullptr) return nullptr;
  return std::unique_ptr<Presenter>(
      new WaylandPresenter({info.info.wl.display, info.info.wl.surface, memory}));
#else
  (void)window;
  return nullptr;
#endif
}

WaylandPresenter::~WaylandPresenter() { wl_shm_destroy(connection_.memory); }

void WaylandPresenter::present(const Surface& frame, const Region& damage) {
  take_size({frame.width(), frame.height()});
  Region shown = damage;
  shown.intersect(frame.rect());
  if (shown.empty()) return;
  if (Slot* const slot = waiting_.empty() ? free_slot() : nullptr) {
    commit(*slot, frame, shown);
    return;
  }
  copy_frame(frame, shown, [&](const RECT& rect, int y) {
    return waiting_pixels_.row_to_overwrite(y, rect.left, rect.right);
  });
  waiting_.unite(shown);
  present_waiting();
}

// The compositor keeps what it was given; a new state of the window takes effect with a commit.
void WaylandPresenter::repaint() {
  if (newest_ == nullptr) return;
  wl_surface_commit(connection_.surface);
  wl_display_flush(connection_.display);
}

// Before, the desktop takes a buffer for a fault of the program's.
void WaylandPresenter::shown() {
  shown_ = true;
  present_waiting();
}

void WaylandPresenter::take_size(SIZE size) {
  std::erase_if(outgrown_, [](const auto& buffer) { return buffer->free(); });
  if (size.cx == size_.cx && size.cy == size_.cy) return;
  size_ = size;
  newest_ = nullptr;
  for (Slot& slot : slots_) {
    if (slot.buffer != nullptr && !slot.buffer->free()) outgrown_.push_back(std::move(slot.buffer));
    slot.buffer = nullptr;
  }
  waiting_.clear();
  waiting_pixels_ = Surface(size.cx, size.cy);
}

// The newest one lacks nothing, so it is taken first.
WaylandPresenter::Slot* WaylandPresenter::free_slot() {
  if (!shown_) return nullptr;
  if (newest_ != nullptr && newest_->buffer->free()) return newest_;
  for (Slot& slot : slots_) {
    if (slot.buffer == nullptr) {
      slot.buffer = SharedBuffer::create(connection_.memory, size_, [this] { present_waiting(); });
      slot.stale = Region({0, 0, size_.cx, size_.cy});
    }
    if (slot.buffer != nullptr && slot.buffer->free()) return &slot;
  }
  return nullptr;
}

void WaylandPresenter::present_waiting() {
  if (waiting_.empty()) return;
  if (Slot* const slot = free_slot()) {
    commit(*slot, waiting_pixels_, waiting_);
    waiting_.clear();
  }
}

void WaylandPresenter::commit(Slot& target, const Surface& source, const Region& damage) {
  Region changed = damage;
  if (newest_ == nullptr) {
    changed = target.stale;
  } else if (newest_ != &target) {
    target.stale.subtract(damage);
    copy(*target.buffer, *newest_->buffer, target.stale);
  }
  copy_frame(source, damage, [&](const RECT&, int y) { return target.buffer->row(y); });
  for (Slot& slot : slots_) slot.stale.unite(damage);
  target.stale.clear();
  newest_ = &target;
  target.buffer->attach(connection_.surface);
  tell_damage(connection_.surface, changed);
  wl_surface_commit(connection_.surface);
  wl_display_flush(connection_.display);
}

}  // namespace corvane::system
