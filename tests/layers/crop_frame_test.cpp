#include "corvane/layers/crop/crop_frame.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>
#include <vector>

#include "corvane/platform/geometry.h"
#include "tests/support/rects.h"
#include "tests/support/source_folder.h"

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

// The code at each point around the rectangle, '.' for outside, a line for each row.
std::string zones(const RECT& rect) {
  const CropFrame frame = drawn(rect);
  std::string text;
  for (LONG y = rect.top - 5; y < rect.bottom + 5; ++y) {
    for (LONG x = rect.left - 5; x < rect.right + 5; ++x) {
      const int code = frame.hit_test({x, y});
      text += code == corvane::crop_hit::outside ? "." : std::to_string(code);
    }
    text += '\n';
  }
  return text;
}

TEST(CropFrame, TellsTheZoneOfAPoint) {
  // Odd sizes, the smallest with zones, and one left of and above zero, where halves round up.
  EXPECT_EQ(zones({20, 15, 61, 46}) + '\n' + zones({0, 0, 8, 8}) + '\n' + zones({-25, -11, 0, 0}),
            corvane::test::source_text("tests/layers/crop_zones.txt"));
  for (const RECT& small : {RECT{50, 50, 57, 200}, RECT{50, 50, 200, 57}}) {
    EXPECT_EQ(zones(small).find_first_not_of(".\n"), std::string::npos);
  }
}

// A press and moves after it, of which each goes on from where the pointer was.
struct DragCase {
  RECT before;
  std::vector<POINT> points;
  int code;
  RECT after;
};

TEST(CropFrame, DragDrawsMovesOrResizesByWhereItBegins) {
  constexpr RECT plain = {100, 100, 200, 180};
  const std::vector<DragCase> cases = {
      // Handles, each by (7, -5).
      {plain, {{100, 100}, {120, 111}, {107, 95}}, 1, {107, 95, 200, 180}},
      {plain, {{150, 101}, {170, 112}, {157, 96}}, 2, {100, 95, 200, 180}},
      {plain, {{199, 99}, {219, 110}, {206, 94}}, 3, {100, 95, 207, 180}},
      {plain, {{202, 140}, {222, 151}, {209, 135}}, 4, {100, 100, 207, 180}},
      {plain, {{201, 182}, {221, 193}, {208, 177}}, 5, {100, 100, 207, 175}},
      {plain, {{149, 178}, {169, 189}, {156, 173}}, 6, {100, 100, 200, 175}},
      {plain, {{97, 183}, {117, 194}, {104, 178}}, 7, {107, 100, 200, 175}},
      {plain, {{100, 141}, {120, 152}, {107, 136}}, 8, {107, 100, 200, 180}},
      {plain, {{100, 140}, {260, 140}}, 8, {260, 100, 200, 180}},  // past the opposite edge
      // The whole, which stops at the area; right and bottom win.
      {plain, {{170, 120}, {190, 131}, {177, 115}}, 9, {107, 95, 207, 175}},
      {plain, {{170, 150}, {-330, 150}}, 9, {0, 100, 100, 180}},
      {plain, {{170, 150}, {-330, 150}, {-320, 150}}, 9, {10, 100, 110, 180}},
      {plain, {{170, 150}, {170, 49}}, 9, {100, 0, 200, 80}},
      {plain, {{170, 150}, {770, 150}}, 9, {700, 100, 800, 180}},
      {plain, {{170, 150}, {771, 571}}, 9, {700, 520, 800, 600}},
      {{-100, 100, 900, 180}, {{170, 150}, {670, 160}}, 9, {-200, 110, 800, 190}},
      {{-100, 100, 900, 180}, {{170, 150}, {-330, 150}}, 9, {-200, 100, 800, 180}},
      {{100, -300, 200, 700}, {{170, 150}, {173, 150}}, 9, {103, -400, 203, 600}},
      // A new rectangle, to any side and beyond the area.
      {plain, {{220, 200}, {250, 250}, {340, 260}}, 0, {220, 200, 340, 260}},
      {plain, {{220, 200}, {250, 250}, {340, 120}}, 0, {220, 120, 340, 200}},
      {plain, {{220, 200}, {250, 250}, {-60, 120}}, 0, {-60, 120, 220, 200}},
      {plain, {{220, 200}, {250, 250}, {-60, 900}}, 0, {-60, 200, 220, 900}},
      {{100, 100, 107, 180}, {{103, 140}}, 0, {103, 140, 103, 140}}};  // too thin for zones
  for (const DragCase& test : cases) {
    SCOPED_TRACE("to " + corvane::test::text_of(test.after));
    CropFrame frame = drawn(test.before);
    EXPECT_EQ(frame.press(test.points[0]), test.code);
    for (std::size_t i = 1; i < test.points.size(); ++i) {
      EXPECT_EQ(frame.move(test.points[i], client), test.code);
    }
    EXPECT_THAT(frame.rectangle(), same_rect(test.after));
    EXPECT_EQ(frame.release(), test.code == 0 && test.points.size() > 1) << "brings the bar";
    EXPECT_FALSE(frame.dragging());
  }
}

TEST(CropFrame, InvertedRectangleIsEmptyAndHasNoZones) {
  CropFrame frame = drawn({100, 100, 200, 180});
  frame.press({100, 140});
  frame.move({260, 140}, client);
  EXPECT_FALSE(frame.release());
  EXPECT_TRUE(frame.empty());
  EXPECT_EQ(frame.hit_test({230, 140}), 0);
}

TEST(CropFrame, HoveringChangesNothingAndClearingEndsNoDrag) {
  CropFrame frame = drawn({100, 100, 200, 180});
  EXPECT_EQ(frame.move({200, 180}, client), 5);
  EXPECT_EQ(frame.move({10, 10}, client), 0);
  EXPECT_THAT(frame.rectangle(), is_rect(100, 100, 200, 180));
  frame.press({150, 140});
  frame.clear();
  EXPECT_TRUE(frame.empty());
  EXPECT_EQ(frame.drag_mode(), 9);
  frame.move({155, 142}, client);
  EXPECT_THAT(frame.rectangle(), is_rect(5, 2, 5, 2));
}

TEST(CropFrame, OutlineClosesItsFirstCorner) {
  const auto outline = drawn({20, 15, 61, 46}).outline();
  const std::vector<POINT> expected = {{19, 15}, {61, 15}, {61, 46}, {20, 46}, {20, 14}};
  for (std::size_t i = 0; i < outline.size(); ++i) {
    EXPECT_EQ(outline[i].x, expected[i].x);
    EXPECT_EQ(outline[i].y, expected[i].y);
  }
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
    const int code = step % 3 == 0 ? frame.press(point) : frame.move(point, area);
    ASSERT_TRUE(code >= 0 && code <= 9) << code;
    if (frame.drag_mode() == 0) {
      ASSERT_LE(frame.rectangle().left, frame.rectangle().right);
      ASSERT_LE(frame.rectangle().top, frame.rectangle().bottom);
    }
    if (random() % 5 == 0) frame.release();
    for (const RECT& square : frame.handle_squares()) ASSERT_TRUE(corvane::has_area(square));
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
