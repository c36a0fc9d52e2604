#include "corvane/trees/owner_drawn/tree_scrolling.h"

#include <gtest/gtest.h>

#include <limits>

namespace corvane::test {
namespace {

TEST(TreeScrolling, Codes) {
  struct Case {
    UINT code;
    int position;
    int moved;
  };
  // 600 pixels of rows in a window of 300.
  const Case cases[] = {{SB_LINEUP, 5, 4},         {SB_LINEUP, 0, 0},     {SB_LINEDOWN, 5, 6},
                        {SB_LINEDOWN, 301, 301},   {SB_PAGEUP, 301, 1},   {SB_PAGEUP, 299, 0},
                        {SB_PAGEDOWN, 0, 300},     {SB_PAGEDOWN, 2, 301}, {SB_THUMBTRACK, 5, 77},
                        {SB_THUMBPOSITION, 5, 77}, {SB_TOP, 250, 0},      {SB_BOTTOM, 0, 301},
                        {SB_ENDSCROLL, 123, 123},  {99, 123, 123},        {SB_PAGEUP, 0, 0},
                        {SB_PAGEDOWN, 301, 301}};
  for (const Case& each : cases) {
    const ScrollState state{0, 301, 300, each.position};
    EXPECT_EQ(scrolled_by_bar(each.code, 77, state), each.moved)
        << "code " << each.code << " at " << each.position;
  }
}

TEST(TreeScrolling, Wheel) {
  struct Case {
    short distance;
    int position;
    int moved;
  };
  const Case cases[] = {{-120, 0, 10},    {120, 10, 0},    {60, 3, 0},
                        {-120, 295, 301}, {-11, 100, 100}, {11, 100, 100},
                        {-23, 100, 101},  {23, 100, 99},   {-32768, 0, 301}};
  for (const Case& each : cases) {
    const ScrollState state{0, 301, 300, each.position};
    EXPECT_EQ(scrolled_by_wheel(each.distance, state), each.moved)
        << each.distance << " at " << each.position;
  }
  EXPECT_EQ(scrolled_by_wheel(-120, {0, 0, 0, 0}), 0) << "nothing to scroll";
}

TEST(TreeScrolling, EndsOfTheNumbers) {
  using Limits = std::numeric_limits<int>;
  const ScrollState first{Limits::min(), Limits::max(), Limits::max(), Limits::min() + 1};
  const ScrollState last{Limits::min(), Limits::max(), Limits::max(), Limits::max() - 1};
  EXPECT_EQ(scrolled_by_bar(SB_PAGEUP, 0, first), first.minimum);
  EXPECT_EQ(scrolled_by_bar(SB_PAGEDOWN, 0, last), last.limit);
  EXPECT_EQ(scrolled_by_wheel(120, first), first.minimum);
  EXPECT_EQ(scrolled_by_wheel(-120, last), last.limit);
}

}  // namespace
}  // namespace corvane::test
