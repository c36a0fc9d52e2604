// The tests' desktop on our own window system.
#include <poll.h>

#include "tests/support/own_system.h"

namespace corvane::test {

Desktop::Desktop(SIZE size)
    : Desktop(std::make_unique<OwnSystem>(std::make_unique<system::HeadlessDisplay>(size))) {}

Desktop::Desktop(std::unique_ptr<OwnSystem> system) : system_(std::move(system)) {}

Desktop::~Desktop() = default;

void Desktop::advance(unsigned milliseconds) { system_->display.advance(milliseconds); }

bool Desktop::wait_for_post(int milliseconds) {
  pollfd work{system_->windows.event_fd(), POLLIN, 0};
  return poll(&work, 1, milliseconds) == 1;
}

Frame Desktop::frame() {
  const system::Surface& shown = system_->windows.frame();
  std::vector<std::uint32_t> pixels;
  pixels.reserve(static_cast<std::size_t>(shown.width()) *
                 static_cast<std::size_t>(shown.height()));
  std::vector<system::Pixel> scratch;
  for (int y = 0; y < shown.height(); ++y) {
    const system::Pixel* const row = shown.read_row(y, scratch);
    pixels.insert(pixels.end(), row, row + shown.width());
  }
  return {{shown.width(), shown.height()}, std::move(pixels)};
}

COLORREF Desktop::pixel(int x, int y) {
  return system::color_of(system_->windows.frame().at(x, y)) & 0xFFFFFF;
}

int Desktop::living_windows() const { return system_->windows.live_windows(); }

int Desktop::living_drawing_objects() const { return system_->windows.gdi().live_objects(); }

}  // namespace corvane::test
