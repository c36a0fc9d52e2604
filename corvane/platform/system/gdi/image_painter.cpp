#include "corvane/platform/system/gdi/image_painter.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>
#include <vector>

#include "corvane/platform/system/gdi/blend.h"
#include "corvane/platform/system/gdi/canvas.h"
#include "corvane/platform/system/gdi/image_scaling.h"

namespace corvane::system {

namespace {

using corvane_system::Gdiplus::Image;

constexpr double kMaxCoordinate = 1 << 22;  // pixels; Cairo's coordinates end at twice this

// Pixels to draw: a part of a surface.
struct Source {
  std::shared_ptr<const Surface> pixels;
  RECT part;
  bool opaque;
  int width() const { return part.right - part.left; }
  int height() const { return part.bottom - part.top; }
};

Source source_of(const Image& image, const RECT& part) {
  return {image.pixels(), part, image.cache()->opaque()};
}

bool contains(const RECT& outer, const RECT& inner) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
         inner.bottom <= outer.bottom;
}

Source shrunk(const Image& image, const RECT& part, int width, int height) {
  const Source whole = source_of(image, part);
  if (width >= whole.width() && height >= whole.height()) return whole;
  auto copy = image.cache()->shrunk(image.pixels(), part, std::min(width, whole.width()),
                                    std::min(height, whole.height()));
  const RECT all = copy->rect();
  return {std::move(copy), all, whole.opaque};
}

// Of a picture that reaches beyond the surface, another part may be seen at the next moment or at
// another scale: it is not averaged anew each time.
bool is_seen_in_part(const DeviceContext& dc, const RECT& reach, const Image& image,
                     const RECT& part) {
  const RECT whole = image.pixels()->rect();
  return !contains(dc.surface->rect(), reach) && EqualRect(&whole, &part) != 0;
}

// Not smaller than it is shown, and less than twice as large where it is seen in part.
Source reduced(const DeviceContext& dc, const RECT& reach, const Image& image, const RECT& part,
               int width, int height) {
  if (!is_seen_in_part(dc, reach, image, part)) return shrunk(image, part, width, height);
  std::shared_ptr<const Surface> pixels = image.cache()->halved(image.pixels(), width, height);
  const RECT all = pixels->rect();
  return {std::move(pixels), all, image.cache()->opaque()};
}

bool is_whole(double value) {
  return std::abs(value) < kMaxCoordinate && std::abs(value - std::round(value)) < 1e-3;
}

// The pixels that the placement covers exactly, when it is upright and on whole pixels.
std::optional<RECT> whole_pixels(const ImagePlacement& placement) {
  const cairo_matrix_t& matrix = placement.matrix;
  if (std::abs(matrix.xy) > 1e-9 || std::abs(matrix.yx) > 1e-9) return std::nullopt;
  const double left = matrix.xx * placement.x + matrix.x0;
  const double top = matrix.yy * placement.y + matrix.y0;
  const double right = left + matrix.xx * placement.width;
  const double bottom = top + matrix.yy * placement.height;
  if (!is_whole(left) || !is_whole(top) || !is_whole(right) || !is_whole(bottom)) {
    return std::nullopt;
  }
  if (left >= right || top >= bottom) return std::nullopt;
  return RECT{static_cast<LONG>(std::lround(left)), static_cast<LONG>(std::lround(top)),
              static_cast<LONG>(std::lround(right)), static_cast<LONG>(std::lround(bottom))};
}

void put(Surface& target, int left, int y, const Pixel* from, int count, bool opaque) {
  const auto pixels = static_cast<std::size_t>(count);
  if (opaque) {
    std::memcpy(target.row_to_overwrite(y, left, left + count) + left, from,
                sizeof(Pixel) * pixels);
  } else {
    blend_over(target.row(y) + left, from, pixels);
  }
}

// Pixel for pixel, the part's upper left corner at (x, y).
void paint_copy(DeviceContext& dc, const Source& source, int x, int y) {
  Region touched = dc.clip();
  touched.intersect(RECT{x, y, x + source.width(), y + source.height()});
  std::vector<Pixel> scratch;
  for (const RECT& piece : touched.rects()) {
    for (int row = piece.top; row < piece.bottom; ++row) {
      const Pixel* from = source.pixels->read_row(source.part.top + row - y, scratch);
      put(*dc.surface, piece.left, row, from + source.part.left + piece.left - x,
          piece.right - piece.left, source.opaque);
    }
  }
  dc.surface->mark(touched);
}

// Every target pixel takes the source pixel under its middle.
void paint_blocks(DeviceContext& dc, const Source& source, const RECT& target) {
  const auto source_at = [](LONG at, LONG start, LONG length, int size) {
    const std::int64_t doubled = 2 * std::int64_t{at - start} + 1;
    return static_cast<int>(doubled * size / (2 * std::int64_t{length}));
  };
  Region touched = dc.clip();
  touched.intersect(target);
  std::vector<Pixel> scratch;
  std::vector<Pixel> line;
  for (const RECT& piece : touched.rects()) {
    for (int y = piece.top; y < piece.bottom; ++y) {
      const int row = source_at(y, target.top, target.bottom - target.top, source.height());
      const Pixel* from = source.pixels->read_row(source.part.top + row, scratch);
      line.clear();
      for (int x = piece.left; x < piece.right; ++x) {
        line.push_back(from[source.part.left +
                            source_at(x, target.left, target.right - target.left, source.width())]);
      }
      put(*dc.surface, piece.left, y, line.data(), piece.right - piece.left, source.opaque);
    }
  }
  dc.surface->mark(touched);
}

// What the placement covers, in pixels; nothing when that is out of all bounds.
std::optional<RECT> reach_of(const ImagePlacement& placement) {
  double left = kMaxCoordinate;
  double top = kMaxCoordinate;
  double right = -kMaxCoordinate;
  double bottom = -kMaxCoordinate;
  for (int corner = 0; corner < 4; ++corner) {
    double x = placement.x + (corner % 2) * placement.width;
    double y = placement.y + (corner / 2) * placement.height;
    cairo_matrix_transform_point(&placement.matrix, &x, &y);
    if (!(std::abs(x) < kMaxCoordinate && std::abs(y) < kMaxCoordinate)) return std::nullopt;
    left = std::min(left, x);
    top = std::min(top, y);
    right = std::max(right, x);
    bottom = std::max(bottom, y);
  }
  return RECT{static_cast<LONG>(std::floor(left)), static_cast<LONG>(std::floor(top)),
              static_cast<LONG>(std::ceil(right)), static_cast<LONG>(std::ceil(bottom))};
}

// How many surface pixels the part's width and height take.
int device_length(double dx, double dy) {
  return static_cast<int>(std::clamp(std::ceil(std::hypot(dx, dy) - 1e-3), 1.0, kMaxCoordinate));
}

// The edges do not fade: colours go on beyond the picture, the outline cuts them off.
void paint_mapped(DeviceContext& dc, const Image& image, const ImagePlacement& placement) {
  const std::optional<RECT> reach = reach_of(placement);
  if (!reach) return;
  const cairo_matrix_t& matrix = placement.matrix;
  const Source source =
      placement.nearest
          ? source_of(image, placement.part)
          : reduced(dc, *reach, image, placement.part,
                    device_length(matrix.xx * placement.width, matrix.yx * placement.width),
                    device_length(matrix.xy * placement.height, matrix.yy * placement.height));
  Region area = dc.clip();
  area.intersect(*reach);
  const Canvas canvas(*dc.surface, std::move(area));
  cairo_t* cairo = canvas.cairo();
  cairo_surface_t* pixels = cairo != nullptr ? image_of(*source.pixels, source.part) : nullptr;
  if (pixels == nullptr) return;
  cairo_transform(cairo, &matrix);
  cairo_rectangle(cairo, placement.x, placement.y, placement.width, placement.height);
  cairo_translate(cairo, placement.x, placement.y);
  cairo_scale(cairo, placement.width / source.width(), placement.height / source.height());
  cairo_set_source_surface(cairo, pixels, 0, 0);
  cairo_pattern_set_extend(cairo_get_source(cairo), CAIRO_EXTEND_PAD);
  cairo_pattern_set_filter(cairo_get_source(cairo),
                           placement.nearest ? CAIRO_FILTER_NEAREST : CAIRO_FILTER_BILINEAR);
  cairo_fill(cairo);
  cairo_surface_destroy(pixels);
}

}  // namespace

void paint_image(DeviceContext& dc, const Image& image, const ImagePlacement& placement) {
  const std::optional<RECT> target = whole_pixels(placement);
  if (!target) {
    paint_mapped(dc, image, placement);
    return;
  }
  const int width = target->right - target->left;
  const int height = target->bottom - target->top;
  const Source source = source_of(image, placement.part);
  if (width == source.width() && height == source.height()) {
    paint_copy(dc, source, target->left, target->top);
  } else if (placement.nearest) {
    paint_blocks(dc, source, *target);
  } else if (width <= source.width() && height <= source.height() &&
             !is_seen_in_part(dc, *target, image, placement.part)) {
    paint_copy(dc, shrunk(image, placement.part, width, height), target->left, target->top);
  } else {
    paint_mapped(dc, image, placement);
  }
}

}  // namespace corvane::system
