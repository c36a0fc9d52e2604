#pragma once
// What a Graphics object remembers.
#include <cairo.h>

#include "corvane/platform/system/gdi/dc.h"
#include "corvane/platform/system/gdi/gdiplus.h"

namespace corvane_system::Gdiplus {

struct Graphics::State {
  HDC dc = nullptr;
  cairo_matrix_t transform{1, 0, 0, 1, 0, 0};  // to the context's logical coordinates
  InterpolationMode interpolation = InterpolationModeDefault;
  PixelOffsetMode pixel_offset = PixelOffsetModeDefault;
  SmoothingMode smoothing = SmoothingModeDefault;
  TextRenderingHint text_hint = TextRenderingHintSystemDefault;
  Status status = Ok;

  // Remembers and returns it.
  Status done(Status result) { return status = result; }
  // Null, with the status set, when the context is gone.
  corvane::system::DeviceContext* context();
  // From the coordinates that drawing functions take to the surface.
  cairo_matrix_t to_surface(const corvane::system::DeviceContext& context) const;
};

// Calls draw(device context) when there is one; short memory gives OutOfMemory.
template <class State, class Draw>
Status draw_softly(State& state, Draw draw) {
  corvane::system::DeviceContext* context = state.context();
  if (!context) return state.status;
  try {
    draw(*context);
    return state.done(Ok);
  } catch (const std::exception&) {
    return state.done(OutOfMemory);
  }
}

// The pixels inside which mapped coordinates lie, with a margin in pixels all round.
RECT mapped_bounds(const cairo_matrix_t& matrix, const RectF& area, double margin);

void set_source(cairo_t* cairo, const Color& color);

}  // namespace corvane_system::Gdiplus
