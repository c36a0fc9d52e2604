#include "corvane/platform/system/display/sdl/presenter.h"

#include "corvane/platform/system/display/sdl/sdl_driver.h"
#include "corvane/platform/system/display/sdl/sdl_surface_presenter.h"
#include "corvane/platform/system/display/sdl/wayland_presenter.h"

namespace corvane::system {

std::unique_ptr<Presenter> open_presenter(SDL_Window* window) {
  if (auto presenter = WaylandPresenter::open(window)) return presenter;
  // Without a graphics processor SDL's accelerated way is many times slower. Only X has another.
  if (is_driver("x11")) SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
  return SdlSurfacePresenter::open(window);
}

}  // namespace corvane::system
