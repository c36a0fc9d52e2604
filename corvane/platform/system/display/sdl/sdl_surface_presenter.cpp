#include "corvane/platform/system/display/sdl/sdl_surface_presenter.h"

#include <cstring>

namespace corvane::system {

namespace {

void copy_rect(SDL_Surface& target, const Surface& frame, const RECT& rect,
               std::vector<Pixel>& scratch) {
  const int width = rect.right - rect.left;
  for (int y = rect.top; y < rect.bottom; ++y) {
    const Pixel* const source = frame.read_row(y, scratch) + rect.left;
    auto* const row = static_cast<std::uint8_t*>(target.pixels) + y * target.pitch +
                      rect.left * target.format->BytesPerPixel;
    if (target.format->format == SDL_PIXELFORMAT_RGB888) {
      std::memcpy(row, source, static_cast<std::size_t>(width) * sizeof(Pixel));
    } else {
      SDL_ConvertPixels(width, 1, SDL_PIXELFORMAT_RGB888, source, width * 4, target.format->format,
                        row, target.pitch);
    }
  }
}

}  // namespace

std::unique_ptr<Presenter> SdlSurfacePresenter::open(SDL_Window* window) {
  if (SDL_GetWindowSurface(window) == nullptr) return nullptr;
  return std::unique_ptr<Presenter>(new SdlSurfacePresenter(window));
}

void SdlSurfacePresenter::present(const Surface& frame, const Region& damage) {
  SDL_Surface* const surface = SDL_GetWindowSurface(window_);
  if (surface == nullptr) return;
  Region shown = damage;
  shown.intersect(frame.rect());
  shown.intersect(RECT{0, 0, surface->w, surface->h});
  if (shown.empty()) return;
  std::vector<Pixel> scratch;
  std::vector<SDL_Rect> updated;
  for (const RECT& rect : shown.rects()) {
    copy_rect(*surface, frame, rect, scratch);
    updated.push_back({rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top});
  }
  SDL_UpdateWindowSurfaceRects(window_, updated.data(), static_cast<int>(updated.size()));
  has_content_ = true;
}

// The window surface still holds what was presented.
void SdlSurfacePresenter::repaint() {
  if (has_content_ && SDL_GetWindowSurface(window_) != nullptr) SDL_UpdateWindowSurface(window_);
}

}  // namespace corvane::system
