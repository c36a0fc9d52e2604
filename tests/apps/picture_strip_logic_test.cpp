// Where a strip's pictures stand, what the mouse does to them, which thumbnails are loaded.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "apps/capture/strip_gesture.h"
#include "apps/capture/strip_layout.h"
#include "apps/capture/thumbnail_cache.h"
#include "apps/capture/thumbnail_order.h"
#include "apps/capture/window_layout.h"
#include "tests/support/rects.h"

namespace capture {
namespace {

using corvane::test::is_rect;
using corvane::test::same_rect;

CStripLayout Strip(int count, SIZE area = {1000, 144}) {
  CStripLayout layout;
  layout.SetArea(area);
  layout.SetCount(count);
  return layout;
}

POINT MiddleOf(const RECT& rect) {
  return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

TEST(StripLayout, PicturesAndNamesStandInTheirCellsAndCellsSideBySide) {
  const struct {
    SIZE area;
    RECT cell;
    RECT picture;
    RECT name;
    LONG next_cell;
    RECT track;
  } cases[] = {
      {{1000, 144},
       {10, 10, 136, 130},
       {16, 16, 130, 102},
       {16, 105, 130, 127},
       142,
       {10, 134, 990, 140}},
      {{3000, 200},
       {10, 10, 211, 186},
       {16, 16, 205, 158},
       {16, 161, 205, 183},
       217,
       {10, 190, 2990, 196}},
      {{200, 60}, {10, 10, 54, 68}, {16, 16, 48, 40}, {16, 43, 48, 65}, 60, {10, 50, 190, 56}}};
  for (const auto& each : cases) {
    const CStripLayout layout = Strip(100, each.area);
    EXPECT_THAT(layout.Cell(0), same_rect(each.cell));
    EXPECT_THAT(layout.Picture(0), same_rect(each.picture));
    EXPECT_THAT(layout.Name(0), same_rect(each.name));
    EXPECT_THAT(layout.Cell(1), is_rect(each.next_cell, 10, each.next_cell + each.cell.right - 10,
                                        each.cell.bottom));
    EXPECT_THAT(layout.ScrollTrack(), same_rect(each.track));
    EXPECT_EQ(layout.CellAt({each.next_cell, 10}), 1);
    EXPECT_EQ(layout.CellAt({each.cell.right, 40}), -1) << "a gap";
  }
}

TEST(StripLayout, TheLastCellEndsWhereTheRowDoes) {
  CStripLayout layout = Strip(20000);
  layout.ScrollTo(1 << 30);
  EXPECT_EQ(layout.scroll(), layout.ScrollLimit());
  EXPECT_EQ(layout.Cell(19999).right, 1000 - 10);
  EXPECT_EQ(layout.Visible().last, 20000);
  EXPECT_EQ(layout.ScrollMark().right, layout.ScrollTrack().right);
  layout.ScrollTo(-5);
  EXPECT_EQ(layout.scroll(), 0);
  EXPECT_EQ(layout.ScrollMark().left, layout.ScrollTrack().left);
  layout.ScrollTo(layout.ScrollLimit());
  layout.SetCount(3);
  EXPECT_EQ(layout.scroll(), 0) << "a shorter row pulls the scroll position back";
}

TEST(StripLayout, VisibleCellsAreExactlyThoseThatTouchTheArea) {
  CStripLayout layout = Strip(40);
  for (int scroll = 0; scroll <= layout.ScrollLimit(); scroll += 13) {
    layout.ScrollTo(scroll);
    const CellRange visible = layout.Visible();
    for (int cell = 0; cell < 40; ++cell) {
      const RECT place = layout.Cell(cell);  // the gap behind it belongs to it
      EXPECT_EQ(place.right + 6 > 0 && place.left < 1000,
                cell >= visible.first && cell < visible.last)
          << "cell " << cell << " at scroll " << scroll;
    }
  }
}

TEST(StripLayout, ShowScrollsAsLittleAsNeeded) {
  CStripLayout layout = Strip(40);
  layout.Show(2);
  EXPECT_EQ(layout.scroll(), 0);
  layout.Show(20);
  EXPECT_EQ(layout.Cell(20).right, 990);
  int scroll = layout.scroll();
  layout.Show(19);
  EXPECT_EQ(layout.scroll(), scroll);
  layout.Show(4);
  EXPECT_EQ(layout.Cell(4).left, 10);
  for (int none : {-1, 40}) layout.Show(none);
  EXPECT_EQ(layout.Cell(4).left, 10);
}

TEST(StripLayout, NothingAndTooLittleRoomAreHarmless) {
  for (SIZE area : {SIZE{0, 0}, SIZE{1, 1}, SIZE{-5, 20}}) {
    for (int count : {-1, 0, 5}) {
      CStripLayout layout = Strip(count, area);
      CellRange visible = layout.Visible();
      EXPECT_LE(0, visible.first);
      EXPECT_LE(visible.first, visible.last);
      EXPECT_LE(visible.last, std::max(count, 0));
      layout.ScrollForMarkAt(10);
    }
  }
  EXPECT_EQ(Strip(0).CellAt({50, 50}), -1);
}

TEST(StripGesture, AShakyClickIsAClickAndADragIsNone) {
  const struct {
    std::vector<LONG> ways;  // from the middle of the third cell; the last one is the release's
    int scroll;
    int clicked;
  } cases[] = {{{0}, 0, 3},       {{4}, 0, 3},        {{-4}, 0, 3},   {{-5}, 5, -1},
               {{-100}, 100, -1}, {{-100, 0}, 0, -1}, {{5, 0}, 0, -1}};
  for (const auto& each : cases) {
    CStripLayout layout = Strip(40);
    CStripGesture gesture;
    const POINT start = MiddleOf(layout.Cell(3));
    gesture.Press(layout, start);
    for (const LONG way : each.ways) gesture.Move(layout, {start.x + way, start.y});
    EXPECT_EQ(layout.scroll(), each.scroll) << "the row follows the pointer";
    const POINT end = {start.x + each.ways.back(), start.y};
    EXPECT_EQ(gesture.Release(layout, end), each.clicked) << each.ways.back();
    EXPECT_EQ(gesture.Release(layout, end), -1) << "nothing is pressed";
  }
}

TEST(StripGesture, ReleasingElsewhereOrLosingTheMouseIsNoClick) {
  CStripLayout layout = Strip(40);
  CStripGesture gesture;
  gesture.Press(layout, MiddleOf(layout.Cell(3)));
  EXPECT_EQ(gesture.Release(layout, MiddleOf(layout.Cell(4))), -1);
  gesture.Press(layout, MiddleOf(layout.Cell(3)));
  gesture.Cancel();
  EXPECT_EQ(gesture.Release(layout, MiddleOf(layout.Cell(3))), -1);
}

TEST(StripGesture, TheScrollMarkGoesWhereTheMouseIs) {
  CStripLayout layout = Strip(20000);
  CStripGesture gesture;
  RECT track = layout.ScrollTrack();
  gesture.Press(layout, MiddleOf(track));
  EXPECT_NEAR(layout.scroll(), layout.ScrollLimit() / 2, layout.ScrollLimit() / 500);
  gesture.Move(layout, {track.right, track.top});
  EXPECT_EQ(layout.scroll(), layout.ScrollLimit());
  EXPECT_EQ(gesture.Release(layout, {track.right, track.top}), -1);
}

TEST(ThumbnailOrder, VisibleOnesFirstThenOutwards) {
  const struct {
    CellRange visible;
    int count;
    std::vector<int> order;
  } cases[] = {{{10, 13}, 100, {10, 11, 12, 13, 9, 14, 8, 15, 7}},
               {{0, 3}, 100, {0, 1, 2, 3, 4, 5}},
               {{1, 3}, 4, {1, 2, 3, 0}},
               {{97, 100}, 100, {97, 98, 99, 96, 95, 94}},
               {{0, 0}, 0, {}}};
  for (const auto& each : cases) EXPECT_EQ(load_order(each.visible, each.count), each.order);
}

TEST(ThumbnailCache, KeepsOnlyTheNamesThatAreStillOfUse) {
  CThumbnailCache cache;
  for (const wchar_t* name : {L"a", L"b", L"c", L"d"}) cache.Put(name, nullptr);
  const std::vector<std::wstring> names = {L"0", L"b", L"bb", L"c"};
  cache.Keep(names);
  EXPECT_EQ(cache.size(), 2u);
  ASSERT_NE(cache.Find(L"b"), nullptr);
  EXPECT_EQ(*cache.Find(L"b"), nullptr) << "known to be no picture";
  EXPECT_EQ(cache.Find(L"a"), nullptr);
}

TEST(WindowLayout, ThePartsFillTheWindowWithoutOverlap) {
  const struct {
    SIZE client;
    LONG library_width, strip_height;
  } cases[] = {{{1280, 800}, 260, 144}, {{3840, 2160}, 420, 260}, {{640, 480}, 160, 104},
               {{360, 380}, 160, 104},  {{359, 379}, 0, 0},       {{10, 10}, 0, 0}};
  for (const auto& each : cases) {
    const auto [width, height] = each.client;
    const WindowLayout layout = lay_out(each.client, 76);
    const LONG top = std::min<LONG>(76, height);
    const LONG bottom = height - each.strip_height;
    EXPECT_THAT(layout.library, is_rect(0, top, each.library_width, height));
    EXPECT_THAT(layout.stage, is_rect(each.library_width, top, width, bottom));
    EXPECT_THAT(layout.strip, is_rect(each.library_width, bottom, width, height));
  }
}

}  // namespace
}  // namespace capture
