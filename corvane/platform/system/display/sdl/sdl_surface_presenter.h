#pragma once
#include <SDL.h>

#include "corvane/platform/system/display/sdl/presenter.h"

namespace corvane::system {

// Presents through SDL's window surface, which every desktop has.
class SdlSurfacePresenter : public Presenter {
 public:
  // Null when the window has no surface.
  static std::unique_ptr<Presenter> open(SDL_Window* window);

  void present(const Surface& frame, const Region& damage) override;
  void repaint() override;
  void resized() override { has_content_ = false; }

 private:
  explicit SdlSurfacePresenter(SDL_Window* window) : window_(window) {}

  SDL_Window* window_;
  bool has_content_ = false;  // something was presented since the last change of size
};

}  // namespace corvane::system
