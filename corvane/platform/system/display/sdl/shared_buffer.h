#pragma once
#include <functional>
#include <memory>

#include "corvane/platform/system/gdi/region.h"
#include "corvane/platform/system/gdi/surface.h"

struct wl_buffer;
struct wl_shm;
struct wl_surface;

namespace corvane::system {

// Opaque pixels in memory that a Wayland compositor reads too: between attach() and its release
// they must not be touched.
class SharedBuffer {
 public:
  // `released` is called when the compositor gives the buffer back, while SDL looks for events.
  // Null when there is no such memory.
  static std::unique_ptr<SharedBuffer> create(wl_shm* memory, SIZE size,
                                              std::function<void()> released);
  ~SharedBuffer();
  SharedBuffer(const SharedBuffer&) = delete;
  SharedBuffer& operator=(const SharedBuffer&) = delete;

  Pixel* row(int y) { return pixels_ + static_cast<std::ptrdiff_t>(y) * size_.cx; }
  bool free() const { return free_; }
  void attach(wl_surface* surface);

 private:
  SharedBuffer(SIZE size, std::function<void()> released);
  bool allocate(wl_shm* memory);
  std::size_t bytes() const;
  static void on_release(void* buffer, wl_buffer*);

  SIZE size_;
  std::function<void()> released_;
  Pixel* pixels_ = nullptr;
  wl_buffer* native_ = nullptr;
  bool free_ = true;
};

}  // namespace corvane::system
