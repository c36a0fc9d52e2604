#include "apps/capture/strip_layout.h"

#include <algorithm>

namespace capture {
namespace {

constexpr int kMargin = 10;  // left and right of the row, above it
constexpr int kGap = 6;      // between two cells
constexpr int kPadding = 6;  // between a cell's edge and its picture
constexpr int kNameHeight = 22;
constexpr int kTrackHeight = 6;
constexpr int kTrackMargin = 4;  // above and below
constexpr int kMinMark = 36;
constexpr int kMinPictureSize = 24;

}  // namespace

void CStripLayout::SetArea(SIZE area) {
  area_ = area;
  ScrollTo(scroll_);
}

void CStripLayout::SetCount(int count) {
  count_ = std::max(count, 0);
  ScrollTo(scroll_);
}

void CStripLayout::ScrollTo(int position) { scroll_ = std::clamp(position, 0, ScrollLimit()); }

int CStripLayout::ScrollLimit() const {
  return std::max(row_width() - static_cast<int>(area_.cx), 0);
}

void CStripLayout::Show(int cell) {
  if (cell < 0 || cell >= count_) return;
  const RECT place = Cell(cell);
  if (place.left < kMargin) {
    ScrollTo(scroll_ + static_cast<int>(place.left) - kMargin);
  } else if (place.right > area_.cx - kMargin) {
    ScrollTo(scroll_ + static_cast<int>(place.right - area_.cx) + kMargin);
  }
}

SIZE CStripLayout::PictureBox() const {
  const int above_and_below =
      kMargin + 2 * kPadding + kNameHeight + kTrackHeight + 2 * kTrackMargin;
  const int height = std::max(static_cast<int>(area_.cy) - above_and_below, kMinPictureSize);
  return {height * 4 / 3, height};
}

int CStripLayout::CellWidth() const {
  return static_cast<int>(PictureBox().cx) + 2 * kPadding + kGap;
}

int CStripLayout::row_width() const {
  return count_ == 0 ? 0 : count_ * CellWidth() - kGap + 2 * kMargin;
}

RECT CStripLayout::Cell(int cell) const {
  const SIZE box = PictureBox();
  const LONG left = kMargin + cell * CellWidth() - scroll_;
  return {left, kMargin, left + box.cx + 2 * kPadding,
          kMargin + box.cy + 2 * kPadding + kNameHeight};
}

RECT CStripLayout::Picture(int cell) const {
  const SIZE box = PictureBox();
  const RECT place = Cell(cell);
  return {place.left + kPadding, place.top + kPadding, place.left + kPadding + box.cx,
          place.top + kPadding + box.cy};
}

RECT CStripLayout::Name(int cell) const {
  const RECT place = Cell(cell);
  return {place.left + kPadding, place.bottom - kNameHeight - kPadding / 2, place.right - kPadding,
          place.bottom - kPadding / 2};
}

CellRange CStripLayout::Visible() const {
  if (area_.cx <= 0 || area_.cy <= 0) return {};
  const int width = CellWidth();
  const int first = std::max(scroll_ - kMargin, 0) / width;
  const int last = (scroll_ + static_cast<int>(area_.cx) - kMargin + width - 1) / width;
  return {std::min(first, count_), std::clamp(last, 0, count_)};
}

int CStripLayout::CellAt(POINT point) const {
  const int along = static_cast<int>(point.x) - kMargin + scroll_;
  if (along < 0 || point.x < 0 || point.x >= area_.cx) return -1;
  const int cell = along / CellWidth();
  if (cell >= count_) return -1;
  const RECT place = Cell(cell);
  return PtInRect(&place, point) ? cell : -1;
}

RECT CStripLayout::ScrollTrack() const {
  if (ScrollLimit() == 0) return {};
  const LONG bottom = area_.cy - kTrackMargin;
  return {kMargin, bottom - kTrackHeight, area_.cx - kMargin, bottom};
}

RECT CStripLayout::ScrollMark() const {
  const RECT track = ScrollTrack();
  const int whole = track.right - track.left;
  if (whole <= 0) return {};
  auto share = static_cast<long long>(whole) * area_.cx / row_width();
  const int length = std::min(std::max(static_cast<int>(share), kMinMark), whole);
  auto way = static_cast<long long>(whole - length) * scroll_ / ScrollLimit();
  const LONG left = track.left + static_cast<LONG>(way);
  return {left, track.top, left + length, track.bottom};
}

int CStripLayout::ScrollForMarkAt(int x) const {
  const RECT track = ScrollTrack();
  const RECT mark = ScrollMark();
  const int length = mark.right - mark.left;
  const int way = track.right - track.left - length;
  if (way <= 0) return scroll_;
  auto left = std::clamp(x - length / 2 - static_cast<int>(track.left), 0, way);
  return static_cast<int>(static_cast<long long>(left) * ScrollLimit() / way);
}

}  // namespace capture
