#include "apps/capture/picture_zoom.h"

#include <algorithm>
#include <cmath>

#include "corvane/layers/crop/picture_mapping.h"

namespace capture {
namespace {

constexpr double kStepsToADoubling = 3;
constexpr double kLargestScale = 32;
constexpr double kAlike = 1e-6;  // two steps are further apart

double middle(LONG first, LONG last) { return (first + static_cast<double>(last)) / 2; }

double next_scale(double scale, bool larger) {
  const double step = std::log2(scale) * kStepsToADoubling;
  const double next = larger ? std::floor(step + kAlike) + 1 : std::ceil(step - kAlike) - 1;
  return std::exp2(next / kStepsToADoubling);
}

// What of a side of the picture is in the middle, so that no more than has to be is left empty.
double middle_inside(double middle, LONG picture, double shown) {
  const double half = shown / 2;
  return picture <= shown ? picture / 2.0 : std::clamp(middle, half, picture - half);
}

}  // namespace

void CPictureZoom::SetPicture(SIZE size) {
  picture_ = size;
  Fit();
}

double CPictureZoom::fitting_scale(const RECT& area) const {
  const RECT fitted = corvane::fit_picture(picture_, area);
  return std::max(static_cast<double>(fitted.right - fitted.left) / picture_.cx,
                  static_cast<double>(fitted.bottom - fitted.top) / picture_.cy);
}

void CPictureZoom::ZoomBy(int steps, POINT about, const RECT& area) {
  if (IsRectEmpty(&area) || picture_.cx <= 0 || picture_.cy <= 0) return;
  double scale = std::max(scale_, fitting_scale(area));
  for (; steps != 0; steps += steps > 0 ? -1 : 1) scale = next_scale(scale, steps > 0);
  zoom_to(scale, about, area);
}

void CPictureZoom::ZoomToOwnSize(POINT about, const RECT& area) {
  if (!IsRectEmpty(&area) && picture_.cx > 0 && picture_.cy > 0) zoom_to(1, about, area);
}

void CPictureZoom::zoom_to(double scale, POINT about, const RECT& area) {
  const double fitting = fitting_scale(area);
  if (scale <= fitting * (1 + kAlike)) return Fit();
  if (scale_ <= fitting) scale_ = fitting;
  keep_inside(area);
  const double way_x = about.x - middle(area.left, area.right);
  const double way_y = about.y - middle(area.top, area.bottom);
  const double next = std::min(scale, kLargestScale);
  middle_x_ += way_x / scale_ - way_x / next;
  middle_y_ += way_y / scale_ - way_y / next;
  scale_ = next;
  keep_inside(area);
}

void CPictureZoom::Pan(SIZE way, const RECT& area) {
  if (!zoomed()) return;
  middle_x_ -= way.cx / scale_;
  middle_y_ -= way.cy / scale_;
  keep_inside(area);
}

void CPictureZoom::keep_inside(const RECT& area) {
  middle_x_ = middle_inside(middle_x_, picture_.cx, (area.right - area.left) / scale_);
  middle_y_ = middle_inside(middle_y_, picture_.cy, (area.bottom - area.top) / scale_);
}

RECT CPictureZoom::Shown(const RECT& area) const {
  const bool fits = !zoomed() || IsRectEmpty(&area) != FALSE || scale_ <= fitting_scale(area);
  if (fits) return corvane::fit_picture(picture_, area);
  CPictureZoom inside = *this;  // the area may have changed
  inside.keep_inside(area);
  const auto pixel = [](double place) { return static_cast<LONG>(std::lround(place)); };
  const LONG left = pixel(middle(area.left, area.right) - inside.middle_x_ * scale_);
  const LONG top = pixel(middle(area.top, area.bottom) - inside.middle_y_ * scale_);
  return {left, top, left + std::max<LONG>(pixel(picture_.cx * scale_), 1),
          top + std::max<LONG>(pixel(picture_.cy * scale_), 1)};
}

}  // namespace capture
