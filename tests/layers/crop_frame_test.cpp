#include "corvane/layers/crop/crop_frame.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

#include "corvane/platform/geometry.h"
#include "tests/support/rects.h"

namespace {

using corvane::CropFrame;
using corvane::place_crop_bar;
using corvane::test::is_rect;
using corvane::test::same_rect;

constexpr RECT client = {0, 0, 800, 600};
constexpr LONG lowest = std::numeric_limits<LONG>::min();
constexpr LONG highest = std::numeric_limits<LONG>::max();

CropFrame drawn(const RECT& rect) {
  CropFrame frame;
  frame.press({rect.left, rect.top});
  frame.move({rect.right, rect.bottom}, client);
  frame.release();
  return frame;
}

struct HitCase {
  RECT rect;
  POINT point;
  int code;
};

TEST(CropFrame, TellsTheZoneOfAPoint) {
  constexpr RECT plain = {100, 100, 200, 181};  // handles at x 100, 150, 200 and y 100, 140, 181
  constexpr RECT smallest = {0, 0, 8, 8};
  constexpr RECT left_of_zero = {-31, -41, 0, 0};  // middle of the top edge at x -15
  const std::vector<HitCase> cases = {{plain, {96, 96}, 1},
                                      {plain, {95, 96}, 0},
                                      {plain, {103, 103}, 1},
                                      {plain, {104, 103}, 9},
                                      {plain, {146, 96}, 2},
                                      {plain, {153, 103}, 2},
                                      {plain, {154, 103}, 9},
                                      {plain, {145, 99}, 0},
                                      {plain, {196, 96}, 3},
                                      {plain, {203, 103}, 3},
                                      {plain, {204, 103}, 0},
                                      {plain, {196, 136}, 4},
                                      {plain, {203, 143}, 4},
                                      {plain, {203, 144}, 0},
                                      {plain, {199, 144}, 9},
                                      {plain, {203, 184}, 5},
                                      {plain, {203, 185}, 0},
                                      {plain, {150, 177}, 6},
                                      {plain, {150, 176}, 9},
                                      {plain, {96, 184}, 7},
                                      {plain, {96, 136}, 8},
                                      {plain, {103, 140}, 8},
                                      {plain, {104, 140}, 9},
                                      {plain, {170, 180}, 9},
                                      {plain, {170, 181}, 0},
                                      {plain, {400, 400}, 0},
                                      {smallest, {2, 2}, 1},
                                      {smallest, {5, 2}, 2},
                                      {smallest, {9, 2}, 3},
                                      {smallest, {4, 4}, 4},
                                      {smallest, {3, 5}, 6},
                                      {smallest, {-1, 5}, 7},
                                      {left_of_zero, {-20, -41}, 9},
                                      {left_of_zero, {-12, -41}, 2},
                                      {{50, 50, 57, 200}, {53, 100}, 0},
                                      {{50, 50, 200, 57}, {50, 50}, 0}};
  for (const HitCase& test : cases) {
    EXPECT_EQ(drawn(test.rect).hit_test(test.point), test.code)
        << "point " << test.point.x << ", " << test.point.y << " of the rectangle at "
        << test.rect.left << ", " << test.rect.top;
  }
}

TEST(CropFrame, DragFromAHandleMovesItsEdgesOnly) {
  struct DragCase {
    POINT from;
    int code;
    RECT after;  // dragged by (7, -5)
  };
  const std::vector<DragCase> cases = {
      {{100, 100}, 1, {107, 95, 200, 180}},  {{150, 101}, 2, {100, 95, 200, 180}},
      {{199, 99}, 3, {100, 95, 207, 180}},   {{202, 140}, 4, {100, 100, 207, 180}},
      {{201, 182}, 5, {100, 100, 207, 175}}, {{149, 178}, 6, {100, 100, 200, 175}},
      {{97, 183}, 7, {107, 100, 200, 175}},  {{100, 141}, 8, {107, 100, 200, 180}},
      {{170, 120}, 9, {107, 95, 207, 175}}};
  for (const DragCase& test : cases) {
    CropFrame frame = drawn({100, 100, 200, 180});
    EXPECT_EQ(frame.press(test.from), test.code);
    // In two moves: each goes on from where the last one ended.
    EXPECT_EQ(frame.move({test.from.x + 20, test.from.y + 11}, client), test.code);
    EXPECT_EQ(frame.move({test.from.x + 7, test.from.y - 5}, client), test.code);
    EXPECT_THAT(frame.rectangle(), same_rect(test.after)) << "code " << test.code;
    EXPECT_FALSE(frame.release()) << "only a new rectangle brings the bar";
    EXPECT_EQ(frame.drag_mode(), -1);
  }
}

TEST(CropFrame, DrawsFromAnyCornerAndBeyondTheArea) {
  const std::vector<POINT> ends = {{340, 260}, {340, 120}, {-60, 120}, {-60, 900}};
  for (const POINT& end : ends) {
    CropFrame frame;
    EXPECT_EQ(frame.press({200, 200}), 0);
    frame.move({250, 250}, client);
    EXPECT_EQ(frame.move(end, client), 0);
    EXPECT_THAT(frame.rectangle(), is_rect(std::min(200, int{end.x}), std::min(200, int{end.y}),
                                           std::max(200, int{end.x}), std::max(200, int{end.y})));
    EXPECT_TRUE(frame.release());
  }
}

TEST(CropFrame, MovingTheWholeStopsAtTheArea) {
  struct MoveCase {
    RECT before;
    SIZE by;
    RECT after;
  };
  const std::vector<MoveCase> cases = {
      {{100, 100, 200, 180}, {-500, 0}, {0, 100, 100, 180}},
      {{100, 100, 200, 180}, {0, -101}, {100, 0, 200, 80}},
      {{100, 100, 200, 180}, {600, 0}, {700, 100, 800, 180}},
      {{100, 100, 200, 180}, {601, 421}, {700, 520, 800, 600}},
      {{-100, 100, 900, 180}, {500, 10}, {-200, 110, 800, 190}},  // wider: right bound wins
      {{-100, 100, 900, 180}, {-500, 0}, {-200, 100, 800, 180}},
      {{100, -300, 200, 700}, {3, 0}, {103, -400, 203, 600}}};  // higher: bottom bound wins
  for (const MoveCase& test : cases) {
    CropFrame frame = drawn(test.before);
    const POINT grip = {150 + 20, 150};
    ASSERT_EQ(frame.press(grip), 9);
    frame.move({grip.x + test.by.cx, grip.y + test.by.cy}, client);
    EXPECT_THAT(frame.rectangle(), same_rect(test.after));
  }
}

TEST(CropFrame, GoesOnFromThePointerAfterBeingStoppedAtTheArea) {
  CropFrame frame = drawn({100, 100, 200, 180});
  frame.press({150, 120});
  frame.move({-50, 120}, client);
  frame.move({-40, 120}, client);
  EXPECT_THAT(frame.rectangle(), is_rect(10, 100, 110, 180));
}

TEST(CropFrame, HandleDraggedPastTheOppositeEdgeLeavesItInverted) {
  CropFrame frame = drawn({100, 100, 200, 180});
  frame.press({100, 140});
  frame.move({260, 140}, client);
  EXPECT_FALSE(frame.release());
  EXPECT_THAT(frame.rectangle(), is_rect(260, 100, 200, 180));
  EXPECT_TRUE(frame.empty());
  EXPECT_EQ(frame.press({230, 140}), 0);
  EXPECT_THAT(frame.rectangle(), is_rect(230, 140, 230, 140));
}

TEST(CropFrame, PressInARectangleTooSmallForZonesStartsANewOne) {
  CropFrame frame = drawn({100, 100, 107, 180});
  EXPECT_EQ(frame.press({103, 140}), 0);
  EXPECT_FALSE(frame.release()) << "a click frames nothing";
  EXPECT_THAT(frame.rectangle(), is_rect(103, 140, 103, 140));
}

TEST(CropFrame, HoveringAndClearing) {
  CropFrame frame = drawn({100, 100, 200, 180});
  EXPECT_EQ(frame.move({200, 180}, client), 5);
  EXPECT_EQ(frame.move({10, 10}, client), 0);
  EXPECT_THAT(frame.rectangle(), is_rect(100, 100, 200, 180));
  frame.press({150, 140});
  frame.clear();
  EXPECT_THAT(frame.rectangle(), is_rect(0, 0, 0, 0));
  EXPECT_EQ(frame.drag_mode(), 9) << "clearing does not end a drag";
  frame.move({155, 142}, client);
  EXPECT_THAT(frame.rectangle(), is_rect(5, 2, 5, 2));
}

TEST(CropFrame, HandlesAndOutline) {
  const CropFrame frame = drawn({20, 15, 61, 46});
  EXPECT_THAT(frame.handle_squares(),
              testing::ElementsAre(is_rect(16, 11, 24, 19), is_rect(36, 11, 44, 19),
                                   is_rect(57, 11, 65, 19), is_rect(57, 26, 65, 34),
                                   is_rect(57, 42, 65, 50), is_rect(36, 42, 44, 50),
                                   is_rect(16, 42, 24, 50), is_rect(16, 26, 24, 34)));
  const auto outline = frame.outline();
  EXPECT_EQ(outline.front().x, 19);
  EXPECT_EQ(outline.front().y, 15);
  EXPECT_EQ(outline.back().x, 20);
  EXPECT_EQ(outline.back().y, 14);
}

TEST(CropFrame, CursorsByCode) {
  const std::vector<std::pair<int, int>> cases = {{0, 32515}, {1, 32642}, {2, 32645},  {3, 32643},
                                                  {4, 32644}, {5, 32642}, {6, 32645},  {7, 32643},
                                                  {8, 32644}, {9, 32646}, {-1, 32515}, {10, 32515}};
  for (const auto& [code, cursor] : cases) EXPECT_EQ(corvane::crop_cursor_id(code), cursor);
}

TEST(CropFrame, BearsEveryCoordinate) {
  std::mt19937 random(20);
  const std::vector<LONG> values = {lowest, lowest + 1, lowest / 2,  -9,          -1,     0, 1,
                                    7,      500,        highest / 2, highest - 1, highest};
  const auto any = [&] { return values[random() % values.size()]; };
  CropFrame frame;
  for (int step = 0; step < 20000; ++step) {
    const POINT point = {any(), any()};
    const RECT area = {any(), any(), any(), any()};
    switch (random() % 3) {
      case 0:
        frame.press(point);
        break;
      case 1: {
        const int code = frame.move(point, area);
        ASSERT_TRUE(code >= 0 && code <= 9) << code;
        if (frame.drag_mode() == 0) {
          ASSERT_LE(frame.rectangle().left, frame.rectangle().right);
          ASSERT_LE(frame.rectangle().top, frame.rectangle().bottom);
        }
        break;
      }
      default:
        frame.release();
    }
    for (const RECT& square : frame.handle_squares()) {
      ASSERT_TRUE(corvane::has_area(square));
    }
    frame.outline();
    const RECT bar = place_crop_bar(frame.rectangle(), {any(), any()}, area);
    ASSERT_LE(bar.bottom, std::max(bar.top, area.bottom));
  }
}

TEST(CropFrame, RectangleAcrossTheWholeRangeHasZones) {
  const CropFrame frame = drawn({lowest, lowest, highest, highest});
  EXPECT_EQ(frame.hit_test({1000, 1000}), 9);
  EXPECT_EQ(frame.hit_test({lowest, lowest}), 1);
  EXPECT_EQ(frame.hit_test({highest - 1, 0}), 4);
}

TEST(PlaceCropBar, RightAlignedUnderTheRectangleAndLiftedAtTheBottom) {
  struct PlaceCase {
    RECT rect;
    RECT bar;
  };
  const SIZE size = {220, 40};
  const std::vector<PlaceCase> cases = {
      {{100, 100, 400, 300}, {180, 300, 400, 340}},
      {{100, 100, 400, 560}, {180, 560, 400, 600}},  // just fits
      {{100, 100, 400, 561}, {180, 560, 400, 600}},  // lifted
      {{100, 100, 400, 900}, {180, 560, 400, 600}},
      {{0, 0, 50, 50}, {-170, 50, 50, 90}},      // no correction at the left
      {{700, 0, 900, 50}, {680, 50, 900, 90}}};  // nor at the right
  for (const PlaceCase& test : cases) {
    EXPECT_THAT(place_crop_bar(test.rect, size, client), same_rect(test.bar));
  }
}

}  // namespace
