#include "corvane/layers/crop/button_rows.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/rects.h"

namespace {

using corvane::CropButtonRects;
using corvane::CropRow;
using corvane::test::is_rect;

// Widths 10, 20, 30, 40, 50, 60; each of its own height, standing anywhere.
constexpr CropButtonRects skin_rects = {{{5, 7, 15, 27},
                                         {100, 3, 120, 33},
                                         {-30, -40, 0, 0},
                                         {1, 1, 41, 26},
                                         {9, 9, 59, 31},
                                         {0, 50, 60, 90}}};

TEST(ButtonRows, StandInTheOrderOfTheBar) {
  EXPECT_THAT(
      corvane::lay_out_crop_buttons(skin_rects),
      testing::ElementsAre(is_rect(70, 0, 80, 20), is_rect(80, 0, 100, 30), is_rect(0, 0, 30, 40),
                           is_rect(30, 0, 70, 25), is_rect(0, 0, 50, 22), is_rect(50, 0, 110, 40)));
}

TEST(ButtonRows, ARowIsAsHighAsItsFirstButton) {
  const auto laid = corvane::lay_out_crop_buttons(skin_rects);
  EXPECT_THAT(corvane::crop_row_bounds(laid, CropRow::normal), is_rect(0, 0, 100, 40));
  EXPECT_THAT(corvane::crop_row_bounds(laid, CropRow::text_recognition), is_rect(0, 0, 110, 22));
}

TEST(ButtonRows, AbsurdSkinRectanglesStayInRange) {
  constexpr LONG lowest = std::numeric_limits<LONG>::min();
  constexpr LONG highest = std::numeric_limits<LONG>::max();
  CropButtonRects rects;
  rects.fill({lowest, lowest, highest, highest});
  const auto laid = corvane::lay_out_crop_buttons(rects);
  EXPECT_THAT(laid[1], is_rect(highest, 0, highest, highest));
  rects.fill({highest, highest, lowest, lowest});
  EXPECT_THAT(corvane::lay_out_crop_buttons(rects)[1], is_rect(lowest, 0, lowest, lowest));
}

}  // namespace
