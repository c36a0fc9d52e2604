#include "apps/capture/strip_gesture.h"

#include <cstdlib>

namespace capture {
namespace {

constexpr int kMinDrag = 5;     // pixels; a hand that clicks may shake by less
constexpr int kTrackReach = 4;  // pixels around the thin track that belong to it

bool on_track(const CStripLayout& layout, POINT point) {
  RECT track = layout.ScrollTrack();
  if (IsRectEmpty(&track)) return false;
  InflateRect(&track, 0, kTrackReach);
  return PtInRect(&track, point) != 0;
}

}  // namespace

void CStripGesture::Press(CStripLayout& layout, POINT point) {
  pressed_ = point;
  pressed_scroll_ = layout.scroll();
  pressed_cell_ = layout.CellAt(point);
  kind_ = on_track(layout, point) ? Kind::mark : Kind::click;
  if (kind_ == Kind::mark) layout.ScrollTo(layout.ScrollForMarkAt(static_cast<int>(point.x)));
}

void CStripGesture::Move(CStripLayout& layout, POINT point) {
  auto way = static_cast<int>(pressed_.x - point.x);
  if (kind_ == Kind::click && std::abs(way) >= kMinDrag) kind_ = Kind::row;
  if (kind_ == Kind::row) layout.ScrollTo(pressed_scroll_ + way);
  if (kind_ == Kind::mark) layout.ScrollTo(layout.ScrollForMarkAt(static_cast<int>(point.x)));
}

int CStripGesture::Release(const CStripLayout& layout, POINT point) {
  const bool clicked = kind_ == Kind::click && layout.CellAt(point) == pressed_cell_;
  kind_ = Kind::none;
  return clicked ? pressed_cell_ : -1;
}

}  // namespace capture
