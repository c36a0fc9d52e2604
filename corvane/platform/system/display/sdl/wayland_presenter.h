#pragma once
#include <vector>

#include "corvane/platform/system/display/sdl/presenter.h"
#include "corvane/platform/system/display/sdl/shared_buffer.h"

struct wl_display;

namespace corvane::system {

// Presents on Wayland through two buffers in shared memory, of which the compositor may keep one.
// While it keeps both, and while the window is hidden, damage waits.
class WaylandPresenter : public Presenter {
 public:
  // Null when the window is not one of Wayland's or its compositor shares no memory.
  static std::unique_ptr<Presenter> open(SDL_Window* window);
  ~WaylandPresenter() override;

  void present(const Surface& frame, const Region& damage) override;
  void repaint() override;
  void shown() override;

 private:
  struct Connection {
    wl_display* display;
    wl_surface* surface;  // the window's; SDL's
    wl_shm* memory;       // own
  };
  // One of the two, and where it lacks what was presented through the other since.
  struct Slot {
    std::unique_ptr<SharedBuffer> buffer;
    Region stale;
  };

  explicit WaylandPresenter(const Connection& connection) : connection_(connection) {}
  void take_size(SIZE size);
  Slot* free_slot();
  void present_waiting();
  void commit(Slot& target, const Surface& source, const Region& damage);

  Connection connection_;
  bool shown_ = false;
  SIZE size_{};
  Slot slots_[2];
  Slot* newest_ = nullptr;                               // holds all that was presented
  std::vector<std::unique_ptr<SharedBuffer>> outgrown_;  // that the compositor still reads
  Region waiting_;
  Surface waiting_pixels_{0, 0};
};

}  // namespace corvane::system
