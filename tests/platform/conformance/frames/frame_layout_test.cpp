// Where the parts of a frame lie, without windows.
#include "corvane/platform/system/user/frames/frame_layout.h"

#include <gtest/gtest.h>

#include <string>

#include "corvane/platform/system/user/frames/frame_sides.h"
#include "tests/support/rects.h"

namespace corvane::conformance {
namespace {

using system::FrameLayout;
using test::text_of;

constexpr RECT kOuter{100, 200, 500, 500};
TEST(FrameLayoutTest, CodesOfPoints) {
  const auto hexadecimal = [](const std::string& field) {
    return static_cast<DWORD>(std::stoul(field, nullptr, 16));
  };
  for (const auto& row : test::golden_rows("tests/platform/conformance/frames/frame_hits.txt")) {
    const FrameLayout layout(kOuter, hexadecimal(row.at(0)), hexadecimal(row.at(1)));
    const auto point = test::numbers_of(row.at(2));
    EXPECT_EQ(layout.hit({point.at(0), point.at(1)}), std::stoi(row.at(3)))
        << row.at(0) << ' ' << row.at(2) << ' ' << row.at(4);
  }
}

TEST(FrameLayoutTest, PartsWithoutRoomAreLeftOut) {
  const FrameLayout narrow({0, 0, 70, 60}, WS_OVERLAPPEDWINDOW, 0);
  EXPECT_EQ(text_of(narrow.box(HTCLOSE)), "40,4,66,23");
  EXPECT_EQ(text_of(narrow.box(HTMAXBUTTON)), "14,4,40,23");
  EXPECT_EQ(text_of(narrow.box(HTMINBUTTON)), "0,0,0,0");
  EXPECT_EQ(text_of(narrow.text()), "8,4,10,23");
  for (const RECT& tiny : {RECT{5, 6, 5, 6}, RECT{5, 6, 9, 12}}) {
    const FrameLayout layout(tiny, WS_OVERLAPPEDWINDOW, WS_EX_CLIENTEDGE);
    EXPECT_EQ(text_of(layout.inside()), "11,31,11,31");
    EXPECT_EQ(text_of(layout.caption()), "0,0,0,0");
  }
  constexpr LONG kFar = 0x7FFFFFFF;
  const RECT everything{-kFar, -kFar, kFar, kFar};
  EXPECT_EQ(FrameLayout(everything, WS_CAPTION, 0).hit({0, 0}), HTBORDER);
}

TEST(FrameLayoutTest, DraggedSideKeepsTheOppositeOneAndTheLimits) {
  MINMAXINFO limits{};
  limits.ptMinTrackSize = {50, 40};
  limits.ptMaxTrackSize = {450, 350};
  for (const auto& row : test::golden_rows("tests/platform/conformance/frames/frame_sides.txt")) {
    const auto travel = test::numbers_of(row.at(1));
    const POINT to{travel.at(0), travel.at(1)};
    EXPECT_THAT(system::sized_frame(kOuter, std::stoi(row.at(0)), to, limits),
                test::same_rect(test::rect_of(row.at(2))))
        << row.at(3);
  }
}

}  // namespace
}  // namespace corvane::conformance
