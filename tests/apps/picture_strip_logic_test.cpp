// Where a strip's pictures stand, what the mouse does to them, which thumbnails are loaded.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "apps/capture/strip_gesture.h"
#include "apps/capture/strip_layout.h"
#include "apps/capture/thumbnail_cache.h"
#include "apps/capture/thumbnail_order.h"
#include "apps/capture/window_layout.h"

namespace capture {
namespace {

using testing::ElementsAre;

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
  for (SIZE area : {SIZE{1000, 144}, SIZE{3000, 200}, SIZE{200, 104}}) {
    CStripLayout layout = Strip(50, area);
    for (int cell : {0, 1, 49}) {
      RECT place = layout.Cell(cell);
      RECT picture = layout.Picture(cell);
      RECT name = layout.Name(cell);
      SIZE box = layout.PictureBox();
      EXPECT_EQ(picture.right - picture.left, box.cx);
      EXPECT_EQ(picture.bottom - picture.top, box.cy);
      EXPECT_LT(place.left, picture.left);
      EXPECT_GT(place.right, picture.right);
      EXPECT_LE(picture.bottom, name.top);
      EXPECT_LE(name.bottom, place.bottom);
      EXPECT_LE(place.bottom, layout.ScrollTrack().top);
      EXPECT_EQ(layout.CellAt(MiddleOf(place)), place.left < area.cx ? cell : -1);
    }
    EXPECT_LT(layout.Cell(0).right, layout.Cell(1).left) << "a gap";
    EXPECT_EQ(layout.CellAt({layout.Cell(0).right + 1, 40}), -1);
    EXPECT_LE(layout.ScrollTrack().bottom, area.cy);
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
    CellRange visible = layout.Visible();
    for (int cell = 0; cell < 40; ++cell) {
      RECT place = layout.Cell(cell);
      bool touches = place.right > 0 && place.left < 1000;
      bool drawn = cell >= visible.first && cell < visible.last;
      EXPECT_TRUE(drawn || !touches) << "cell " << cell << " at scroll " << scroll;
      EXPECT_TRUE(!drawn || place.right > -layout.CellWidth()) << "cell " << cell;
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
  CStripLayout layout = Strip(40);
  CStripGesture gesture;
  POINT start = MiddleOf(layout.Cell(3));
  gesture.Press(layout, start);
  gesture.Move(layout, {start.x + 3, start.y});
  EXPECT_EQ(gesture.Release(layout, {start.x + 3, start.y}), 3);
  EXPECT_EQ(layout.scroll(), 0);
  gesture.Press(layout, start);
  gesture.Move(layout, {start.x - 100, start.y});
  EXPECT_EQ(layout.scroll(), 100) << "the row follows the pointer";
  gesture.Move(layout, start);
  EXPECT_EQ(layout.scroll(), 0);
  EXPECT_EQ(gesture.Release(layout, start), -1) << "it was dragged, though it came back";
  EXPECT_EQ(gesture.Release(layout, start), -1) << "nothing is pressed";
}

TEST(StripGesture, ReleasingElsewhereOrLosingTheMouseIsNoClick) {
  CStripLayout layout = Strip(40);
  CStripGesture gesture;
  POINT start = MiddleOf(layout.Cell(3));
  gesture.Press(layout, start);
  EXPECT_EQ(gesture.Release(layout, MiddleOf(layout.Cell(4))), -1);
  gesture.Press(layout, start);
  gesture.Cancel();
  EXPECT_EQ(gesture.Release(layout, start), -1);
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
  } cases[] = {{{1280, 800}, 260, 144},
               {{3840, 2160}, 420, 260},
               {{640, 480}, 160, 104},
               {{300, 240}, 0, 0},
               {{10, 10}, 0, 0}};
  for (const auto& each : cases) {
    SCOPED_TRACE(testing::Message() << each.client.cx << " x " << each.client.cy);
    WindowLayout layout = lay_out(each.client, 76);
    EXPECT_EQ(layout.library.right - layout.library.left, each.library_width);
    EXPECT_EQ(layout.strip.bottom - layout.strip.top, each.strip_height);
    EXPECT_EQ(layout.stage.left, layout.library.right);
    EXPECT_EQ(layout.stage.bottom, layout.strip.top);
    EXPECT_EQ(layout.stage.right, each.client.cx);
    EXPECT_EQ(layout.strip.bottom, each.client.cy);
    EXPECT_LE(layout.stage.top, layout.stage.bottom);
  }
}

}  // namespace
}  // namespace capture
