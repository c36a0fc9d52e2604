// The standard scroll bars of a window object.
#include <gtest/gtest.h>

#include "tests/platform/framework/watched_wnd.h"
#include "tests/support/desktop.h"

namespace corvane {
namespace {

constexpr DWORD kBarred = WS_POPUP | WS_VISIBLE | WS_VSCROLL;

class FrameworkScrolling : public testing::Test {
 protected:
  void set(int minimum, int maximum, UINT page, int position) {
    SCROLLINFO info{0, SIF_ALL, minimum, maximum, page, position, 0};
    EXPECT_TRUE(window_.SetScrollInfo(SB_VERT, &info));
  }
  test::Desktop desktop_;
  WatchedWnd window_;
};

TEST_F(FrameworkScrolling, SetsAndGets) {
  ASSERT_TRUE(window_.create(nullptr, kBarred));
  set(0, 600, 300, 20);
  EXPECT_EQ(window_.SetScrollPos(SB_VERT, 500), 20);
  EXPECT_EQ(window_.GetScrollPos(SB_VERT), 301);
  window_.SetScrollRange(SB_VERT, -5, 400);
  int minimum = 0, maximum = 0;
  window_.GetScrollRange(SB_VERT, &minimum, &maximum);
  EXPECT_EQ(minimum, -5);
  EXPECT_EQ(maximum, 400);
  SCROLLINFO info{};
  ASSERT_TRUE(window_.GetScrollInfo(SB_VERT, &info));
  EXPECT_EQ(info.nPage, 300u);
  EXPECT_EQ(info.nTrackPos, 101);
  SCROLLINFO range{0, 0, 0, 0, 77, 77, 77};
  ASSERT_TRUE(window_.GetScrollInfo(SB_VERT, &range, SIF_RANGE));
  EXPECT_EQ(range.nMax, 400);
  EXPECT_EQ(range.nPage, 77u) << "not asked for";
}

struct LimitCase {
  int minimum, maximum;
  UINT page;
  int limit;
};

TEST_F(FrameworkScrolling, LimitIsTheLastPositionWithAFullPage) {
  ASSERT_TRUE(window_.create(nullptr, kBarred));
  for (const LimitCase& each : {LimitCase{0, 600, 300, 301}, LimitCase{0, 100, 0, 100},
                                LimitCase{0, 100, 1, 100}, LimitCase{-50, 10, 11, 0}}) {
    set(each.minimum, each.maximum, each.page, 0);
    EXPECT_EQ(window_.GetScrollLimit(SB_VERT), each.limit) << each.page;
  }
}

TEST_F(FrameworkScrolling, WithoutAWindowEverythingFails) {
  SCROLLINFO info{0, SIF_ALL, 0, 9, 1, 3, 0};
  EXPECT_FALSE(window_.SetScrollInfo(SB_VERT, &info));
  EXPECT_FALSE(window_.GetScrollInfo(SB_VERT, &info));
  EXPECT_FALSE(window_.SetScrollInfo(SB_VERT, nullptr));
  EXPECT_EQ(window_.SetScrollPos(SB_VERT, 1), 0);
  EXPECT_EQ(window_.GetScrollPos(SB_VERT), 0);
  EXPECT_EQ(window_.GetScrollLimit(SB_VERT), 0);
  int minimum = 7, maximum = 7;
  window_.GetScrollRange(SB_VERT, &minimum, &maximum);
  EXPECT_EQ(minimum, 0);
  EXPECT_EQ(maximum, 0);
  window_.SetScrollRange(SB_VERT, 0, 5);
  window_.ShowScrollBar(SB_VERT);
}

}  // namespace
}  // namespace corvane
