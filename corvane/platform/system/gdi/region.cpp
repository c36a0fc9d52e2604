#include "corvane/platform/system/gdi/region.h"

#include <cairo.h>

#include <algorithm>
#include <utility>

#include "corvane/platform/geometry.h"

namespace corvane::system {

namespace {

cairo_rectangle_int_t to_cairo(const RECT& rect) {
  const LONG left = clamp_to_summable(rect.left);
  const LONG top = clamp_to_summable(rect.top);
  return {left, top, std::max(0, clamp_to_summable(rect.right) - left),
          std::max(0, clamp_to_summable(rect.bottom) - top)};
}

RECT from_cairo(const cairo_rectangle_int_t& rect) {
  return {rect.x, rect.y, rect.x + rect.width, rect.y + rect.height};
}

}  // namespace

// A region without an Impl is empty.
struct Region::Impl {
  explicit Impl(cairo_region_t* owned) : region(owned) {}
  Impl(const Impl&) = delete;
  Impl& operator=(const Impl&) = delete;
  ~Impl() { cairo_region_destroy(region); }
  cairo_region_t* region;
};

Region::Region() = default;
Region::~Region() = default;
Region::Region(Region&& other) noexcept = default;
Region& Region::operator=(Region&& other) noexcept = default;

Region::Region(const RECT& rect) {
  if (!has_area(rect)) return;
  const cairo_rectangle_int_t area = to_cairo(rect);
  impl_ = std::make_unique<Impl>(cairo_region_create_rectangle(&area));
}

Region::Region(const Region& other) {
  if (other.impl_) impl_ = std::make_unique<Impl>(cairo_region_copy(other.impl_->region));
}

Region& Region::operator=(const Region& other) {
  if (this != &other) *this = Region(other);
  return *this;
}

bool Region::empty() const { return !impl_ || (cairo_region_is_empty(impl_->region) != 0); }

RECT Region::bounds() const {
  if (empty()) return {0, 0, 0, 0};
  cairo_rectangle_int_t extents;
  cairo_region_get_extents(impl_->region, &extents);
  return from_cairo(extents);
}

int Region::count() const { return impl_ ? cairo_region_num_rectangles(impl_->region) : 0; }

RECT Region::rect(int index) const {
  if (index < 0 || index >= count()) return {0, 0, 0, 0};
  cairo_rectangle_int_t piece;
  cairo_region_get_rectangle(impl_->region, index, &piece);
  return from_cairo(piece);
}

std::vector<RECT> Region::rects() const {
  std::vector<RECT> pieces;
  const int pieces_count = count();
  pieces.reserve(static_cast<std::size_t>(pieces_count));
  for (int index = 0; index < pieces_count; ++index) pieces.push_back(rect(index));
  return pieces;
}

bool Region::contains(POINT point) const {
  return impl_ && (cairo_region_contains_point(impl_->region, point.x, point.y) != 0);
}

bool Region::intersects(const RECT& rect) const {
  if (!impl_ || !has_area(rect)) return false;
  const cairo_rectangle_int_t area = to_cairo(rect);
  return cairo_region_contains_rectangle(impl_->region, &area) != CAIRO_REGION_OVERLAP_OUT;
}

bool Region::covers(const RECT& rect) const {
  if (!has_area(rect)) return true;
  if (!impl_) return false;
  const cairo_rectangle_int_t area = to_cairo(rect);
  return cairo_region_contains_rectangle(impl_->region, &area) == CAIRO_REGION_OVERLAP_IN;
}

void Region::clear() { impl_.reset(); }

void Region::unite(const RECT& rect) {
  if (!has_area(rect)) return;
  if (!impl_) {
    *this = Region(rect);
    return;
  }
  const cairo_rectangle_int_t area = to_cairo(rect);
  cairo_region_union_rectangle(impl_->region, &area);
}

void Region::unite(const Region& other) {
  if (!impl_) {
    *this = other;
  } else if (other.impl_) {
    cairo_region_union(impl_->region, other.impl_->region);
  }
}

void Region::subtract(const RECT& rect) {
  if (!impl_ || !has_area(rect)) return;
  const cairo_rectangle_int_t area = to_cairo(rect);
  cairo_region_subtract_rectangle(impl_->region, &area);
}

void Region::subtract(const Region& other) {
  if (this == &other) {
    clear();
  } else if (impl_ && other.impl_) {
    cairo_region_subtract(impl_->region, other.impl_->region);
  }
}

void Region::intersect(const RECT& rect) {
  if (!impl_) return;
  if (!has_area(rect)) {
    clear();
    return;
  }
  const cairo_rectangle_int_t area = to_cairo(rect);
  cairo_region_intersect_rectangle(impl_->region, &area);
}

void Region::intersect(const Region& other) {
  if (!other.impl_) {
    clear();
  } else if (impl_ && this != &other) {
    cairo_region_intersect(impl_->region, other.impl_->region);
  }
}

void Region::translate(int dx, int dy) {
  if (impl_) cairo_region_translate(impl_->region, clamp_to_summable(dx), clamp_to_summable(dy));
}

}  // namespace corvane::system
