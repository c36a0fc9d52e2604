// The standard scroll bars of a window object.
#include <tuple>

#include "tests/platform/framework/watched_wnd.h"

namespace corvane {
namespace {

using Range = std::pair<int, int>;

class FrameworkScrolling : public WatchedWndTest {
 protected:
  void set(int minimum, int maximum, UINT page, int position) {
    SCROLLINFO info{0, SIF_ALL, minimum, maximum, page, position, 0};
    EXPECT_TRUE(window_.SetScrollInfo(SB_VERT, &info));
  }
  static Range range_of(const CWnd& window) {
    int minimum = 7, maximum = 7;
    window.GetScrollRange(SB_VERT, &minimum, &maximum);
    return {minimum, maximum};
  }
};

TEST_F(FrameworkScrolling, SetsAndGets) {
  set(0, 600, 300, 20);
  EXPECT_EQ(window_.SetScrollPos(SB_VERT, 500), 20);
  EXPECT_EQ(window_.GetScrollPos(SB_VERT), 301);
  window_.SetScrollRange(SB_VERT, -5, 400);
  EXPECT_EQ(range_of(window_), Range(-5, 400));
  SCROLLINFO info{};
  ASSERT_TRUE(window_.GetScrollInfo(SB_VERT, &info));
  EXPECT_EQ(info.nPage, 300u);
  EXPECT_EQ(info.nTrackPos, 101);
  SCROLLINFO range{0, 0, 0, 0, 77, 77, 77};
  ASSERT_TRUE(window_.GetScrollInfo(SB_VERT, &range, SIF_RANGE));
  EXPECT_EQ(range.nMax, 400);
  EXPECT_EQ(range.nPage, 77u) << "not asked for";
}

TEST_F(FrameworkScrolling, LimitIsTheLastPositionWithAFullPage) {
  const std::tuple<int, int, UINT, int> cases[] = {
      {0, 600, 300, 301}, {0, 100, 0, 100}, {0, 100, 1, 100}, {-50, 10, 11, 0}};
  for (const auto& [minimum, maximum, page, limit] : cases) {
    set(minimum, maximum, page, 0);
    EXPECT_EQ(window_.GetScrollLimit(SB_VERT), limit) << page;
  }
}

TEST_F(FrameworkScrolling, WithoutAWindowEverythingFails) {
  WatchedWnd none;
  SCROLLINFO info{0, SIF_ALL, 0, 9, 1, 3, 0};
  EXPECT_FALSE(none.SetScrollInfo(SB_VERT, &info));
  EXPECT_FALSE(none.GetScrollInfo(SB_VERT, &info));
  EXPECT_FALSE(none.SetScrollInfo(SB_VERT, nullptr));
  EXPECT_EQ(none.SetScrollPos(SB_VERT, 1), 0);
  EXPECT_EQ(none.GetScrollPos(SB_VERT), 0);
  EXPECT_EQ(none.GetScrollLimit(SB_VERT), 0);
  EXPECT_EQ(range_of(none), Range(0, 0));
  none.SetScrollRange(SB_VERT, 0, 5);
  none.ShowScrollBar(SB_VERT);
}

}  // namespace
}  // namespace corvane
