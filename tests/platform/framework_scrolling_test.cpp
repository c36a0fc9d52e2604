// The standard scroll bars of a window object.
#include <gtest/gtest.h>

#include "tests/platform/framework_desktop.h"

namespace corvane {
namespace {

constexpr DWORD kBarred = WS_POPUP | WS_VISIBLE | WS_VSCROLL;

class FrameworkScrolling : public testing::Test {
 protected:
  void set(int minimum, int maximum, UINT page, int position) {
    SCROLLINFO info{0, SIF_ALL, minimum, maximum, page, position, 0};
    EXPECT_TRUE(window_.SetScrollInfo(SB_VERT, &info));
  }
  FrameworkDesktop desktop_;
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

TEST_F(FrameworkScrolling, ShowsAndHidesTheBar) {
  ASSERT_TRUE(window_.create(nullptr, WS_POPUP | WS_VISIBLE));
  CRect client;
  window_.ShowScrollBar(SB_VERT);
  window_.GetClientRect(client);
  EXPECT_EQ(client.Width(), 200 - 17);
  window_.ShowScrollBar(SB_VERT, FALSE);
  window_.GetClientRect(client);
  EXPECT_EQ(client.Width(), 200);
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

// A list that scrolls as its bar says: the bar's messages reach the handler with the position.
class ScrolledWnd : public WatchedWnd {
 public:
  const MessageMap* GetMessageMap() const override {
    static constexpr auto kMessages = MessageTable(On<WM_VSCROLL>(&ScrolledWnd::OnVScroll));
    static const MessageMap map = kMessages.Extending(WatchedWnd::GetMessageMap());
    return &map;
  }

 protected:
  void OnVScroll(UINT code, UINT position, CScrollBar* bar) {
    EXPECT_EQ(bar, nullptr);
    if (code == SB_LINEDOWN) SetScrollPos(SB_VERT, GetScrollPos(SB_VERT) + 1);
    if (code == SB_PAGEDOWN) SetScrollPos(SB_VERT, GetScrollPos(SB_VERT) + 10);
    if (code == SB_THUMBTRACK) SetScrollPos(SB_VERT, static_cast<int>(position));
  }
};

TEST_F(FrameworkScrolling, HandlerScrollsByTheBar) {
  ScrolledWnd list;
  ASSERT_TRUE(list.create(nullptr, kBarred));  // its bar: x 283 to 299, y 100 to 249
  SCROLLINFO info{0, SIF_ALL, 0, 99, 10, 0, 0};
  list.SetScrollInfo(SB_VERT, &info);
  const auto click = [&](int y) {
    desktop_.move_to(290, y);
    desktop_.button(MOUSEEVENTF_LEFTDOWN);
    desktop_.button(MOUSEEVENTF_LEFTUP);
    desktop_.windows.process_pending();
  };
  click(245);
  EXPECT_EQ(list.GetScrollPos(SB_VERT), 1);
  click(220);
  EXPECT_EQ(list.GetScrollPos(SB_VERT), 11);
  desktop_.move_to(290, 140);
  desktop_.button(MOUSEEVENTF_LEFTDOWN);
  desktop_.move_to(290, 500);
  desktop_.button(MOUSEEVENTF_LEFTUP);
  desktop_.windows.process_pending();
  EXPECT_EQ(list.GetScrollPos(SB_VERT), 90);
}

}  // namespace
}  // namespace corvane
