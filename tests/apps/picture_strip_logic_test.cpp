// Where a strip's pictures stand, what the mouse does to them, which thumbnails are loaded.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "apps/capture/strip_gesture.h"
#include "apps/capture/strip_layout.h"
#include "apps/capture/thumbnail_order.h"
#include "apps/capture/window_layout.h"
#include "tests/support/rects.h"
#include "tests/support/source_folder.h"

namespace capture {
namespace {

using corvane::test::source_folder;
using corvane::test::text_of;

CStripLayout Strip(int count, SIZE area = {1000, 144}) {
  CStripLayout layout;
  layout.SetArea(area);
  layout.SetCount(count);
  return layout;
}

POINT MiddleOf(const RECT& rect) {
  return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

// The first and the last visible cell at both ends of a row, also where there is no room; the parts
// of the window beside it.
TEST(Layouts, StandWhereTheTextFileSays) {
  std::ostringstream said;
  for (const SIZE area : {SIZE{1000, 144}, {3000, 200}, {200, 60}, {1, 1}, {0, 0}}) {
    CStripLayout layout = Strip(20000, area);
    for (const int scroll : {-5, 1 << 30}) {
      layout.ScrollTo(scroll);
      const auto [first, last] = layout.Visible();
      said << "strip " << area.cx << 'x' << area.cy << " at " << layout.scroll() << ": cells "
           << first << '-' << last << ", " << text_of(layout.Cell(first)) << " to "
           << text_of(layout.Cell(last - 1)) << ", picture " << text_of(layout.Picture(first))
           << ", name " << text_of(layout.Name(first)) << ", track "
           << text_of(layout.ScrollTrack()) << ", mark " << text_of(layout.ScrollMark())
           << ", at half the track " << layout.ScrollForMarkAt(area.cx / 2) << '\n';
    }
  }
  for (const SIZE client :
       {SIZE{1280, 800}, {3840, 2160}, {640, 480}, {360, 380}, {359, 379}, {10, 10}}) {
    const WindowLayout layout = lay_out(client, 76);
    said << "window " << client.cx << 'x' << client.cy << ": library " << text_of(layout.library)
         << ", stage " << text_of(layout.stage) << ", strip " << text_of(layout.strip) << '\n';
  }
  std::ifstream expected(source_folder() / "tests/apps/layouts.txt");
  EXPECT_EQ(said.str(), std::string(std::istreambuf_iterator<char>(expected), {}));
}

TEST(StripLayout, AShorterRowPullsTheScrollPositionBack) {
  CStripLayout layout = Strip(40);
  layout.ScrollTo(layout.ScrollLimit());
  layout.SetCount(3);
  EXPECT_EQ(layout.scroll(), 0);
  EXPECT_EQ(layout.CellAt(MiddleOf(layout.Cell(2))), 2);
  for (const POINT nowhere : {POINT{138, 40}, {50, 9}, {50, 130}, {5, 40}, {-1, 40}, {410, 40}}) {
    EXPECT_EQ(layout.CellAt(nowhere), -1) << nowhere.x << ", " << nowhere.y;
  }
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
  const std::pair<int, int> cases[] = {{2, 0},   {20, 1786}, {19, 1786},
                                       {4, 528}, {-1, 528},  {40, 528}};
  for (const auto& [cell, scroll] : cases) {
    layout.Show(cell);
    EXPECT_EQ(layout.scroll(), scroll) << cell;
  }
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
  gesture.Press(layout, {500, 130});  // a little above the track
  EXPECT_EQ(layout.scroll(), layout.ScrollForMarkAt(500));
  gesture.Move(layout, {990, 200});
  EXPECT_EQ(layout.scroll(), layout.ScrollLimit());
  EXPECT_EQ(gesture.Release(layout, {990, 200}), -1);
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

}  // namespace
}  // namespace capture
