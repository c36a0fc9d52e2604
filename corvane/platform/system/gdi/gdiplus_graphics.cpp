#include <algorithm>
#include <cmath>
#include <utility>

#include "corvane/platform/system/gdi/canvas.h"
#include "corvane/platform/system/gdi/gdi_impl.h"
#include "corvane/platform/system/gdi/gdiplus_state.h"
#include "corvane/platform/system/gdi/image_painter.h"

namespace corvane_system::Gdiplus {

using namespace corvane::system;

namespace {

constexpr double kMaxCoordinate = 1 << 22;  // pixels; beyond it nothing is told apart

// Turning by quarters is exact.
void rotate(cairo_matrix_t& matrix, double degrees) {
  const double turn = std::fmod(std::fmod(degrees, 360.0) + 360.0, 360.0);
  const double quarters = turn / 90.0;
  cairo_matrix_t rotation;
  if (quarters == std::floor(quarters)) {
    constexpr int kCosine[] = {1, 0, -1, 0};
    const int quarter = static_cast<int>(quarters) % 4;
    const int cosine = kCosine[quarter];
    const int sine = kCosine[(quarter + 3) % 4];
    cairo_matrix_init(&rotation, cosine, sine, -sine, cosine, 0, 0);
  } else {
    cairo_matrix_init_rotate(&rotation, turn * std::acos(-1.0) / 180.0);
  }
  cairo_matrix_multiply(&matrix, &rotation, &matrix);
}

// The part of the picture that exists, and the target cut down to it.
struct Cut {
  RECT part;
  RectF target;
};
std::optional<Cut> cut_to_picture(const Image& image, const RectF& target, const RectF& part) {
  const float left = std::max(part.X, 0.0f);
  const float top = std::max(part.Y, 0.0f);
  const float right = std::min(part.X + part.Width, static_cast<float>(image.GetWidth()));
  const float bottom = std::min(part.Y + part.Height, static_cast<float>(image.GetHeight()));
  if (!(left < right && top < bottom)) return std::nullopt;
  const float scale_x = target.Width / part.Width;
  const float scale_y = target.Height / part.Height;
  return Cut{{static_cast<LONG>(left), static_cast<LONG>(top), static_cast<LONG>(right),
              static_cast<LONG>(bottom)},
             {target.X + (left - part.X) * scale_x, target.Y + (top - part.Y) * scale_y,
              (right - left) * scale_x, (bottom - top) * scale_y}};
}

template <class State>
Status draw_part(State& state, const Image* image, const RectF& target, const RectF& part) {
  if (image == nullptr || image->pixels() == nullptr) return state.done(InvalidParameter);
  if (target.Width == 0 || target.Height == 0 || !(part.Width > 0 && part.Height > 0)) {
    return state.done(Ok);
  }
  return draw_softly(state, [&](DeviceContext& dc) {
    const std::optional<Cut> cut = cut_to_picture(*image, target, part);
    if (!cut) return;
    const RectF& area = cut->target;
    paint_image(dc, *image,
                {cut->part, area.X, area.Y, area.Width, area.Height, state.to_surface(dc),
                 state.interpolation == InterpolationModeNearestNeighbor});
  });
}

RectF whole(const Image* image) {
  if (image == nullptr) return {};
  return {0, 0, static_cast<REAL>(image->GetWidth()), static_cast<REAL>(image->GetHeight())};
}

RectF to_real(const Rect& rect) {
  return {static_cast<REAL>(rect.X), static_cast<REAL>(rect.Y), static_cast<REAL>(rect.Width),
          static_cast<REAL>(rect.Height)};
}

// Runs draw(cairo) with the transform set, on the pixels of an area.
template <class State, class Draw>
Status draw_shape(State& state, const RectF& area, double margin, Draw draw) {
  return draw_softly(state, [&](DeviceContext& dc) {
    const cairo_matrix_t matrix = state.to_surface(dc);
    Region reach = dc.clip();
    reach.intersect(mapped_bounds(matrix, area, margin));
    const Canvas canvas(*dc.surface, std::move(reach));
    if (!canvas.cairo()) return;
    cairo_transform(canvas.cairo(), &matrix);
    const bool smooth = state.smoothing == SmoothingModeAntiAlias;
    cairo_set_antialias(canvas.cairo(), smooth ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
    draw(canvas.cairo());
  });
}

// Pens are centred on the middle of the pixel that a coordinate names; even widths on its edge.
double pen_width(const Pen& pen) { return std::max(1.0f, pen.GetWidth()); }
double pen_offset(const Pen& pen) { return std::lround(pen_width(pen)) % 2 == 1 ? 0.5 : 0.0; }

}  // namespace

void set_source(cairo_t* cairo, const Color& color) {
  const ARGB value = color.GetValue();
  cairo_set_source_rgba(cairo, ((value >> 16) & 0xFF) / 255.0, ((value >> 8) & 0xFF) / 255.0,
                        (value & 0xFF) / 255.0, (value >> 24) / 255.0);
}

RECT mapped_bounds(const cairo_matrix_t& matrix, const RectF& area, double margin) {
  double left = kMaxCoordinate;
  double top = kMaxCoordinate;
  double right = -kMaxCoordinate;
  double bottom = -kMaxCoordinate;
  for (int corner = 0; corner < 4; ++corner) {
    double x = area.X + (corner % 2 == 1 ? area.Width : 0);
    double y = area.Y + (corner / 2 == 1 ? area.Height : 0);
    cairo_matrix_transform_point(&matrix, &x, &y);
    left = std::min(left, x - margin);
    top = std::min(top, y - margin);
    right = std::max(right, x + margin);
    bottom = std::max(bottom, y + margin);
  }
  const auto pixel = [](double value) {
    return static_cast<LONG>(std::clamp(value, -kMaxCoordinate, kMaxCoordinate));
  };
  return {pixel(std::floor(left)), pixel(std::floor(top)), pixel(std::ceil(right)),
          pixel(std::ceil(bottom))};
}

DeviceContext* Graphics::State::context() {
  DeviceContext* found = find_dc(dc);
  if (found == nullptr) done(InvalidParameter);
  return found;
}

cairo_matrix_t Graphics::State::to_surface(const DeviceContext& context) const {
  const POINT origin = context.origin();
  cairo_matrix_t shift;
  cairo_matrix_init_translate(&shift, origin.x, origin.y);
  cairo_matrix_t matrix;
  cairo_matrix_multiply(&matrix, &transform, &shift);
  return matrix;
}

Graphics::Graphics(HDC dc) : state_(std::make_unique<State>()) {
  state_->dc = dc;
  state_->context();
}

Graphics::~Graphics() = default;

Status Graphics::GetLastStatus() const { return std::exchange(state_->status, Ok); }

Status Graphics::SetInterpolationMode(InterpolationMode mode) {
  state_->interpolation = mode;
  return state_->done(Ok);
}

Status Graphics::SetPixelOffsetMode(PixelOffsetMode mode) {
  state_->pixel_offset = mode;
  return state_->done(Ok);
}

Status Graphics::SetSmoothingMode(SmoothingMode mode) {
  state_->smoothing = mode;
  return state_->done(Ok);
}

Status Graphics::SetTextRenderingHint(TextRenderingHint hint) {
  state_->text_hint = hint;
  return state_->done(Ok);
}

Status Graphics::TranslateTransform(REAL dx, REAL dy) {
  if (!std::isfinite(dx) || !std::isfinite(dy)) return state_->done(InvalidParameter);
  cairo_matrix_translate(&state_->transform, dx, dy);
  return state_->done(Ok);
}

Status Graphics::RotateTransform(REAL degrees) {
  if (!std::isfinite(degrees)) return state_->done(InvalidParameter);
  rotate(state_->transform, degrees);
  return state_->done(Ok);
}

Status Graphics::ScaleTransform(REAL sx, REAL sy) {
  if (!std::isfinite(sx) || !std::isfinite(sy) || sx == 0 || sy == 0) {
    return state_->done(InvalidParameter);
  }
  cairo_matrix_scale(&state_->transform, sx, sy);
  return state_->done(Ok);
}

Status Graphics::ResetTransform() {
  cairo_matrix_init_identity(&state_->transform);
  return state_->done(Ok);
}

Status Graphics::DrawImage(Image* image, const Rect& target) {
  return draw_part(*state_, image, to_real(target), whole(image));
}

Status Graphics::DrawImage(Image* image, const RectF& target) {
  return draw_part(*state_, image, target, whole(image));
}

Status Graphics::DrawImage(Image* image, const Rect& target, INT x, INT y, INT width, INT height,
                           Unit unit) {
  if (unit != UnitPixel) return state_->done(InvalidParameter);
  return draw_part(*state_, image, to_real(target), to_real({x, y, width, height}));
}

Status Graphics::FillRectangle(const Brush* brush, INT x, INT y, INT width, INT height) {
  const auto* solid = dynamic_cast<const SolidBrush*>(brush);
  if (solid == nullptr) return state_->done(InvalidParameter);
  if (width <= 0 || height <= 0) return state_->done(Ok);
  const RectF area = to_real({x, y, width, height});
  return draw_shape(*state_, area, 1, [&](cairo_t* cairo) {
    set_source(cairo, solid->color());
    cairo_rectangle(cairo, x, y, width, height);
    cairo_fill(cairo);
  });
}

Status Graphics::DrawRectangle(const Pen* pen, INT x, INT y, INT width, INT height) {
  if (pen == nullptr) return state_->done(InvalidParameter);
  if (width < 0 || height < 0) return state_->done(Ok);
  const RectF area = to_real({x, y, width, height});
  return draw_shape(*state_, area, pen_width(*pen) + 1, [&](cairo_t* cairo) {
    set_source(cairo, pen->color());
    cairo_set_line_width(cairo, pen_width(*pen));
    cairo_rectangle(cairo, x + pen_offset(*pen), y + pen_offset(*pen), width, height);
    cairo_stroke(cairo);
  });
}

Status Graphics::DrawLine(const Pen* pen, INT x1, INT y1, INT x2, INT y2) {
  if (pen == nullptr) return state_->done(InvalidParameter);
  const RectF area{static_cast<REAL>(x1), static_cast<REAL>(y1),
                   static_cast<REAL>(x2) - static_cast<REAL>(x1),
                   static_cast<REAL>(y2) - static_cast<REAL>(y1)};
  return draw_shape(*state_, area, pen_width(*pen) + 1, [&](cairo_t* cairo) {
    set_source(cairo, pen->color());
    cairo_set_line_width(cairo, pen_width(*pen));
    cairo_set_line_cap(cairo, pen_width(*pen) <= 1 ? CAIRO_LINE_CAP_SQUARE : CAIRO_LINE_CAP_BUTT);
    cairo_move_to(cairo, x1 + pen_offset(*pen), y1 + pen_offset(*pen));
    cairo_line_to(cairo, x2 + pen_offset(*pen), y2 + pen_offset(*pen));
    cairo_stroke(cairo);
  });
}

}  // namespace corvane_system::Gdiplus
