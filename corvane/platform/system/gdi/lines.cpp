#include "corvane/platform/system/gdi/lines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "corvane/platform/system/gdi/gdi_impl.h"

namespace corvane::system {

namespace {

// Steps of a dashed pen: drawn, left out.
struct Dashes {
  int on;
  int off;
};
Dashes dashes_of(int style) {
  if (style == PS_DASH) return {18, 6};
  if (style == PS_DOT) return {3, 3};
  return {1, 0};
}

class ThinLine {
 public:
  ThinLine(DeviceContext& dc, const PenObject& pen, POINT from, POINT to)
      : dc_(dc),
        painter_(dc),
        dashes_(dashes_of(pen.style)),
        color_(dc.pixel(pen.color)),
        from_(from),
        to_(to) {
    along_x_ = std::abs(to.x - from.x) >= std::abs(to.y - from.y);
    const LONG length = along_x_ ? to.x - from.x : to.y - from.y;
    steps_ = std::abs(length);
    direction_ = length < 0 ? -1 : 1;
  }

  void draw() {
    const RECT reach = painter_.reach();
    const LONG start = along_x_ ? from_.x : from_.y;
    const LONG low = along_x_ ? reach.left : reach.top;
    const LONG high = along_x_ ? reach.right : reach.bottom;
    LONG first = direction_ > 0 ? low - start : start - high + 1;
    LONG behind = direction_ > 0 ? high - start : start - low + 1;
    first = std::max(0, first);
    behind = std::min(steps_, behind);
    while (first < behind) first = draw_run(first, behind);
  }

 private:
  // Draws the steps that lie in one straight run with one colour; returns the step behind it.
  LONG draw_run(LONG first, LONG behind) {
    const LONG offset = offset_at(first);
    const LONG phase = first % (dashes_.on + dashes_.off);
    const bool on = phase < dashes_.on;
    LONG end = behind;
    if (dashes_.off > 0) {
      end = std::min(end, first + (on ? dashes_.on : dashes_.on + dashes_.off) - phase);
    }
    LONG last = first;
    if (offset_at(end - 1) == offset) {
      last = end - 1;
    } else {
      while (offset_at(last + 1) == offset) ++last;
    }
    if (on) {
      fill(first, last, offset, color_);
    } else if (dc_.state.back_mode == OPAQUE) {
      fill(first, last, offset, dc_.pixel(dc_.state.back_color));
    }
    return last + 1;
  }

  void fill(LONG first, LONG last, LONG offset, Pixel color) {
    const LONG start = along_x_ ? from_.x : from_.y;
    const LONG low = std::min(start + direction_ * first, start + direction_ * last);
    const LONG high = std::max(start + direction_ * first, start + direction_ * last) + 1;
    if (along_x_) {
      painter_.fill({low, from_.y + offset, high, from_.y + offset + 1}, color);
    } else {
      painter_.fill({from_.x + offset, low, from_.x + offset + 1, high}, color);
    }
  }

  // How far the line has gone to the side after some steps, rounded to the nearest pixel.
  LONG offset_at(LONG step) const {
    const std::int64_t aside = along_x_ ? to_.y - from_.y : to_.x - from_.x;
    const std::int64_t doubled = 2 * aside * step;
    const std::int64_t length = steps_;
    const std::int64_t sign = doubled < 0 ? -1 : 1;
    return static_cast<LONG>(sign * ((sign * doubled + length) / (2 * length)));
  }

  const DeviceContext& dc_;
  Painter painter_;
  Dashes dashes_;
  Pixel color_;
  POINT from_;
  POINT to_;
  bool along_x_ = true;
  LONG steps_ = 0;
  int direction_ = 1;
};

// The area that a disc covers on its way from one point to another. It is convex, so a row meets
// it in one piece.
class Stroke {
 public:
  Stroke(int width, POINT from, POINT to)
      : radius_(width / 2.0 - 0.1),
        x1_(from.x + (width % 2) * 0.5),
        y1_(from.y + (width % 2) * 0.5),
        x2_(to.x + (width % 2) * 0.5),
        y2_(to.y + (width % 2) * 0.5) {}

  double top() const { return std::min(y1_, y2_) - radius_; }
  double bottom() const { return std::max(y1_, y2_) + radius_; }

  // The pixels of a row whose middle is covered: [left, right).
  void cut(int row, double* left, double* right) {
    left_ = kFar;
    right_ = -kFar;
    const double y = row + 0.5;
    add_disc(x1_, y1_, y);
    add_disc(x2_, y2_, y);
    const double length = std::hypot(x2_ - x1_, y2_ - y1_);
    if (length > 0) {
      const double nx = (y2_ - y1_) / length * radius_;
      const double ny = (x1_ - x2_) / length * radius_;
      add_edge(x1_ + nx, y1_ + ny, x2_ + nx, y2_ + ny, y);
      add_edge(x1_ - nx, y1_ - ny, x2_ - nx, y2_ - ny, y);
    }
    *left = std::ceil(left_ - 0.5);
    *right = std::floor(right_ - 0.5) + 1;
  }

 private:
  static constexpr double kFar = 1e12;

  void add(double left, double right) {
    left_ = std::min(left_, left);
    right_ = std::max(right_, right);
  }
  void add_disc(double cx, double cy, double y) {
    const double square = radius_ * radius_ - (y - cy) * (y - cy);
    if (square >= 0) add(cx - std::sqrt(square), cx + std::sqrt(square));
  }
  void add_edge(double ax, double ay, double bx, double by, double y) {
    if (ay == by || y < std::min(ay, by) || y > std::max(ay, by)) return;
    const double x = ax + (bx - ax) * (y - ay) / (by - ay);
    add(x, x);
  }

  double radius_;
  double x1_, y1_, x2_, y2_;
  double left_ = kFar;
  double right_ = -kFar;
};

void draw_wide_line(DeviceContext& dc, const PenObject& pen, POINT from, POINT to) {
  Stroke stroke(pen.width, from, to);
  Painter painter(dc);
  const RECT reach = painter.reach();
  const int top = std::max(reach.top, static_cast<LONG>(std::floor(stroke.top())));
  const int bottom = std::min(reach.bottom, static_cast<LONG>(std::ceil(stroke.bottom())));
  RECT block{0, 0, 0, 0};  // rows that are covered alike are filled together
  for (int row = top; row < bottom; ++row) {
    double left = 0;
    double right = 0;
    stroke.cut(row, &left, &right);
    left = std::max<double>(left, reach.left);
    right = std::min<double>(right, reach.right);
    if (left >= right) continue;
    const RECT piece{static_cast<LONG>(left), row, static_cast<LONG>(right), row + 1};
    if (piece.left == block.left && piece.right == block.right && block.bottom == row) {
      block.bottom = row + 1;
      continue;
    }
    painter.fill(block, dc.pixel(pen.color));
    block = piece;
  }
  painter.fill(block, dc.pixel(pen.color));
}

}  // namespace

void draw_line(DeviceContext& dc, const PenObject& pen, POINT from, POINT to) {
  if (pen.style == PS_NULL) return;
  if (pen.width <= 1) {
    ThinLine(dc, pen, from, to).draw();
  } else {
    draw_wide_line(dc, pen, from, to);
  }
}

}  // namespace corvane::system

namespace corvane_system {

using namespace corvane::system;

BOOL MoveToEx(HDC dc, int x, int y, LPPOINT previous) {
  DeviceContext* context = find_dc(dc);
  if (context == nullptr) return FALSE;
  if (previous != nullptr) *previous = context->state.position;
  context->state.position = {x, y};
  return TRUE;
}

BOOL LineTo(HDC dc, int x, int y) {
  DeviceContext* context = find_dc(dc);
  if (context == nullptr) return FALSE;
  const POINT from = context->state.position;
  context->state.position = {x, y};
  const PenObject* pen = current_tables()->get<PenObject>(context->state.pen);
  if (pen == nullptr) return FALSE;
  return softly(FALSE, [&] {
    draw_line(*context, *pen, context->to_surface(from.x, from.y), context->to_surface(x, y));
    return TRUE;
  });
}

}  // namespace corvane_system
