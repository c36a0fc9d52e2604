#include "corvane/platform/system/gdi/surface.h"

#include <algorithm>
#include <cassert>
#include <cstring>
#include <utility>

#include "corvane/platform/geometry.h"

namespace corvane::system {

namespace {

constexpr int kMaxSize = 65535;
constexpr std::int64_t kMaxPixels = std::int64_t{1} << 28;

int checked_size(int size) { return std::clamp(size, 0, kMaxSize); }

std::size_t index_of(int y) { return static_cast<std::size_t>(y); }

}  // namespace

bool Surface::can_hold(std::int64_t width, std::int64_t height) {
  return std::max(width, height) <= kMaxSize && width * height <= kMaxPixels;
}

Surface::Surface(int width, int height, Pixel color)
    : width_(checked_size(width)), height_(checked_size(height)) {
  rows_.assign(index_of(height_), Row{color, false});
}

Surface::Surface(const Surface& other)
    : width_(other.width_),
      height_(other.height_),
      bottom_up_(other.bottom_up_),
      rows_(other.rows_),
      marks_(other.marks_) {
  for (int y = 0; y < height_; ++y) {
    if (rows_[index_of(y)].stored) {
      std::memcpy(allocated_row(y), other.address(y), sizeof(Pixel) * index_of(width_));
    }
  }
}

Surface& Surface::operator=(const Surface& other) {
  if (this != &other) *this = Surface(other);
  return *this;
}

std::optional<Pixel> Surface::uniform() const {
  if (rows_.empty()) return std::nullopt;
  const Pixel color = rows_.front().color;
  for (const Row& row : rows_) {
    if (row.stored || row.color != color) return std::nullopt;
  }
  return color;
}

Pixel* Surface::address(int y) const {
  assert(y >= 0 && y < height_);
  const int line = bottom_up_ ? height_ - 1 - y : y;
  return pixels_.get() + index_of(line) * index_of(width_);
}

Pixel* Surface::allocated_row(int y) {
  if (!pixels_) {
    pixels_ = std::make_unique_for_overwrite<Pixel[]>(
        std::max<std::size_t>(1, index_of(width_) * index_of(height_)));
  }
  return address(y);
}

Pixel* Surface::row(int y) { return row_to_overwrite(y, 0, 0); }

Pixel* Surface::row_to_overwrite(int y, int left, int right) {
  if (y < 0 || y >= height_) return nullptr;
  Row& row = rows_[index_of(y)];
  Pixel* target = allocated_row(y);
  if (!row.stored) {
    std::fill(target, target + std::clamp(left, 0, width_), row.color);
    std::fill(target + std::clamp(right, 0, width_), target + width_, row.color);
    row.stored = true;
  }
  return target;
}

Pixel* Surface::pixels() {
  for (int y = 0; y < height_; ++y) row(y);
  return pixels_.get();
}

const Pixel* Surface::row_if_stored(int y) const {
  if (y < 0 || y >= height_ || !rows_[index_of(y)].stored) return nullptr;
  return address(y);
}

Pixel Surface::uniform_row(int y) const {
  return y < 0 || y >= height_ ? 0 : rows_[index_of(y)].color;
}

const Pixel* Surface::read_row(int y, std::vector<Pixel>& scratch) const {
  if (y < 0 || y >= height_) return nullptr;
  if (rows_[index_of(y)].stored) return address(y);
  scratch.assign(index_of(width_), rows_[index_of(y)].color);
  return scratch.data();
}

Pixel Surface::at(int x, int y) const {
  if (x < 0 || x >= width_ || y < 0 || y >= height_) return 0;
  const Row& row = rows_[index_of(y)];
  return row.stored ? address(y)[x] : row.color;
}

void Surface::fill(const RECT& rect, Pixel color) {
  const auto [left, top, right, bottom] = intersection(rect, this->rect());
  if (left >= right) return;
  const bool whole_rows = left == 0 && right == width_ && !pinned_;
  for (int y = top; y < bottom; ++y) {
    Row& row = rows_[index_of(y)];
    if (whole_rows) {
      row = Row{color, false};
    } else if (row.stored || row.color != color) {
      Pixel* target = row_to_overwrite(y, left, right);
      std::fill(target + left, target + right, color);
    }
  }
}

void Surface::resize(int width, int height) {
  if (checked_size(width) == width_ && checked_size(height) == height_) return;
  Surface resized(width, height);
  for (int y = 0; y < std::min(height_, resized.height_); ++y) {
    const Row& row = rows_[index_of(y)];
    const int kept = std::min(width_, resized.width_);
    if (!row.stored) {
      resized.fill({0, y, kept, y + 1}, row.color);
    } else if (kept > 0) {
      std::memcpy(resized.row(y), address(y), sizeof(Pixel) * index_of(kept));
    }
  }
  resized.marks_ = std::move(marks_);
  resized.marks_.intersect(resized.rect());
  *this = std::move(resized);
}

Pixel* Surface::pin(RowOrder order) {
  const bool bottom_up = order == RowOrder::bottom_up;
  if (bottom_up != bottom_up_) {
    Pixel* first = pixels();
    for (int y = 0; y < height_ / 2; ++y) {
      std::swap_ranges(first + index_of(y) * index_of(width_),
                       first + index_of(y + 1) * index_of(width_),
                       first + index_of(height_ - 1 - y) * index_of(width_));
    }
    bottom_up_ = bottom_up;
  }
  pinned_ = true;
  return pixels();
}

void Surface::mark(const RECT& rect) { mark(Region(rect)); }

void Surface::mark(const Region& region) {
  constexpr int kMaxPieces = 64;
  Region part(region);
  part.intersect(rect());
  marks_.unite(part);
  if (marks_.count() > kMaxPieces) marks_ = Region(marks_.bounds());
}

Region Surface::take_marks() { return std::exchange(marks_, Region()); }

}  // namespace corvane::system
