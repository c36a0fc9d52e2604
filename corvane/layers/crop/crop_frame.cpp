#include "corvane/layers/crop/crop_frame.h"

#include <algorithm>
#include <utility>

#include "corvane/platform/geometry.h"

namespace corvane {
namespace {

constexpr int kCursorCross = 32515;
constexpr int kCursorNwse = 32642;
constexpr int kCursorNesw = 32643;
constexpr int kCursorWe = 32644;
constexpr int kCursorNs = 32645;
constexpr int kCursorAll = 32646;

constexpr std::array<int, 10> kCursorOfCode = {kCursorCross, kCursorNwse, kCursorNs, kCursorNesw,
                                               kCursorWe,    kCursorNwse, kCursorNs, kCursorNesw,
                                               kCursorWe,    kCursorAll};

// The edge that a handle moves across and the one that it moves up or down; null: none.
struct HandleEdges {
  LONG RECT::*across;
  LONG RECT::*along;
};
constexpr std::array<HandleEdges, 8> kEdgesOfHandle = {{{&RECT::left, &RECT::top},
                                                        {nullptr, &RECT::top},
                                                        {&RECT::right, &RECT::top},
                                                        {&RECT::right, nullptr},
                                                        {&RECT::right, &RECT::bottom},
                                                        {nullptr, &RECT::bottom},
                                                        {&RECT::left, &RECT::bottom},
                                                        {&RECT::left, nullptr}}};

LONG moved(LONG value, std::int64_t by) { return clamp_coordinate(std::int64_t{value} + by); }

RECT square_around(LONG x, LONG y) {
  constexpr int kReach = CropFrame::kHandleReach;
  return {moved(x, -kReach), moved(y, -kReach), moved(x, kReach), moved(y, kReach)};
}

// As far as asked, not before `first`, and above all not beyond `last`.
std::int64_t bounded(std::int64_t by, std::int64_t first, std::int64_t last) {
  return std::min(std::max(by, first), last);
}

}  // namespace

bool CropFrame::empty() const { return !has_area(rectangle_); }

void CropFrame::clear() { rectangle_ = {0, 0, 0, 0}; }

int CropFrame::hit_test(POINT point) const {
  if (width_of(rectangle_) < kMinZonedSize || height_of(rectangle_) < kMinZonedSize) {
    return crop_hit::outside;
  }
  const auto squares = handle_squares();
  for (std::size_t i = 0; i < squares.size(); ++i) {
    if (contains(squares[i], point.x, point.y)) return static_cast<int>(i) + crop_hit::top_left;
  }
  return contains(rectangle_, point.x, point.y) ? crop_hit::inside : crop_hit::outside;
}

int CropFrame::press(POINT point) {
  drag_mode_ = hit_test(point);
  if (drag_mode_ == crop_hit::outside) rectangle_ = {point.x, point.y, point.x, point.y};
  last_ = anchor_ = point;
  return drag_mode_;
}

int CropFrame::move(POINT point, const RECT& client) {
  if (drag_mode_ == crop_hit::none) {
    last_ = point;
    return hit_test(point);
  }
  if (drag_mode_ == crop_hit::outside) {
    draw_to(point);
  } else if (drag_mode_ == crop_hit::inside) {
    shift(point, client);
  } else {
    resize(point);
  }
  last_ = point;
  return drag_mode_;
}

bool CropFrame::release() {
  return std::exchange(drag_mode_, crop_hit::none) == crop_hit::outside && !empty();
}

void CropFrame::draw_to(POINT point) {
  rectangle_ = {std::min(anchor_.x, point.x), std::min(anchor_.y, point.y),
                std::max(anchor_.x, point.x), std::max(anchor_.y, point.y)};
}

void CropFrame::resize(POINT point) {
  const HandleEdges& edges =
      kEdgesOfHandle[static_cast<std::size_t>(drag_mode_ - crop_hit::top_left)];
  if (edges.across != nullptr) {
    LONG& edge = rectangle_.*edges.across;
    edge = moved(edge, std::int64_t{point.x} - last_.x);
  }
  if (edges.along != nullptr) {
    LONG& edge = rectangle_.*edges.along;
    edge = moved(edge, std::int64_t{point.y} - last_.y);
  }
}

void CropFrame::shift(POINT point, const RECT& client) {
  const std::int64_t dx =
      bounded(std::int64_t{point.x} - last_.x, std::int64_t{client.left} - rectangle_.left,
              std::int64_t{client.right} - rectangle_.right);
  const std::int64_t dy =
      bounded(std::int64_t{point.y} - last_.y, std::int64_t{client.top} - rectangle_.top,
              std::int64_t{client.bottom} - rectangle_.bottom);
  rectangle_ = {moved(rectangle_.left, dx), moved(rectangle_.top, dy), moved(rectangle_.right, dx),
                moved(rectangle_.bottom, dy)};
}

std::array<RECT, 8> CropFrame::handle_squares() const {
  const RECT& r = rectangle_;
  const LONG cx = middle_coordinate(r.left, r.right);
  const LONG cy = middle_coordinate(r.top, r.bottom);
  return {square_around(r.left, r.top),     square_around(cx, r.top),
          square_around(r.right, r.top),    square_around(r.right, cy),
          square_around(r.right, r.bottom), square_around(cx, r.bottom),
          square_around(r.left, r.bottom),  square_around(r.left, cy)};
}

std::array<POINT, 5> CropFrame::outline() const {
  const RECT& r = rectangle_;
  return {{{moved(r.left, -1), r.top},
           {r.right, r.top},
           {r.right, r.bottom},
           {r.left, r.bottom},
           {r.left, moved(r.top, -1)}}};
}

int crop_cursor_id(int code) {
  if (code < crop_hit::outside || code > crop_hit::inside) return kCursorCross;
  return kCursorOfCode[static_cast<std::size_t>(code)];
}

RECT place_crop_bar(const RECT& rectangle, SIZE bar, const RECT& client) {
  const std::int64_t left = std::int64_t{rectangle.right} - bar.cx;
  std::int64_t top = rectangle.bottom;
  top = std::min(top, std::int64_t{client.bottom} - bar.cy);
  return {clamp_coordinate(left), clamp_coordinate(top), clamp_coordinate(left + bar.cx),
          clamp_coordinate(top + bar.cy)};
}

}  // namespace corvane
