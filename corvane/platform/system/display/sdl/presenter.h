#pragma once
#include <memory>

#include "corvane/platform/system/gdi/region.h"
#include "corvane/platform/system/gdi/surface.h"

struct SDL_Window;

namespace corvane::system {

// The way of a frame's pixels into one native window.
class Presenter {
 public:
  virtual ~Presenter() = default;
  // Costs by the size of the damage. The frame lives until return.
  virtual void present(const Surface& frame, const Region& damage) = 0;
  // The desktop may have lost what the window showed: shows what was presented last.
  virtual void repaint() = 0;
  virtual void shown() {}    // the window is on the desktop from now on
  virtual void resized() {}  // a frame of another size follows
};

// The fastest way that this window's desktop has; to be chosen before anything was drawn into the
// window, and to be destroyed before it. Null: the window can show nothing.
std::unique_ptr<Presenter> open_presenter(SDL_Window* window);

}  // namespace corvane::system
