// Range, page and position of a window's standard scroll bar.
#include "tests/platform/conformance/support/scroll_test.h"

namespace corvane::conformance {
namespace {

class ScrollInfoTest : public ScrollTest {
 protected:
  const HWND plain_ = settled_popup("plain", 500, 100, 200, 300);
};

TEST_F(ScrollInfoTest, FreshBarHasARangeOfAHundredAndTheSystemsWidth) {
  window_ = create("fresh", plan(WS_VSCROLL));
  EXPECT_EQ(numbers(), "0..100 0 0 0");
  for (const int metric : {SM_CXVSCROLL, SM_CYHSCROLL, SM_CYVSCROLL, SM_CXHSCROLL}) {
    EXPECT_EQ(GetSystemMetrics(metric), 17) << metric;
  }
}

TEST_F(ScrollInfoTest, TellsWhereThePartsAre) {
  set(SIF_ALL, 99, 50, 50);
  const auto read = [](HWND window) {
    SCROLLBARINFO info{};
    info.cbSize = sizeof(info);
    EXPECT_TRUE(GetScrollBarInfo(window, OBJID_VSCROLL, &info));
    return info;
  };
  const SCROLLBARINFO bar = read(window_);
  const RECT frame = window_rect(window_);
  EXPECT_EQ(bar.rcScrollBar.right, frame.right);
  EXPECT_EQ(bar.rcScrollBar.bottom - bar.rcScrollBar.top - bar.xyThumbBottom, bar.dxyLineButton);
  EXPECT_EQ(2 * bar.xyThumbTop, bar.rcScrollBar.bottom - bar.rcScrollBar.top);
  DWORD held = 0;
  recorder().before_default("pop", WM_VSCROLL, [&] {
    if (held == 0) held = read(window_).rgstate[1];
    send_mouse(MOUSEEVENTF_LEFTUP);
  });
  press_at(bar.rcScrollBar.left + 5, bar.rcScrollBar.top + 5);
  EXPECT_EQ(held, STATE_SYSTEM_PRESSED);
  EXPECT_EQ(read(window_).rgstate[1], 0U);
  set(SIF_RANGE | SIF_DISABLENOSCROLL, 9, 0, 0);
  EXPECT_EQ(read(window_).rgstate[0], STATE_SYSTEM_UNAVAILABLE);
  set(SIF_RANGE, 9, 0, 0);
  EXPECT_EQ(read(window_).rgstate[0], STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN);
}

TEST_F(ScrollInfoTest, SettingReturnsTheResultingPosition) {
  EXPECT_EQ(set(SIF_ALL, 600, 300, 900), 301);
  EXPECT_EQ(numbers(), "0..600 300 301 301");
  EXPECT_EQ(set(SIF_POS, 0, 0, 250), 250);
  EXPECT_EQ(set(SIF_RANGE | SIF_PAGE, 400, 300, 0), 101);
  EXPECT_EQ(numbers(), "0..400 300 101 101");
  EXPECT_EQ(set(SIF_ALL, 2000000000, 10, 1234567, -2000000000), 1234567);
  EXPECT_EQ(GetScrollPos(window_, SB_VERT), 1234567);
  EXPECT_EQ(numbers(), "-2000000000..2000000000 10 1234567 1234567");
}

TEST_F(ScrollInfoTest, OlderFunctionsKeepTheRestAndSendNothing) {
  set(SIF_POS, 0, 0, 20);
  EXPECT_NE(SetScrollRange(window_, SB_VERT, -50, 500, TRUE), 0);
  EXPECT_EQ(numbers(), "-50..500 300 20 20");
  int minimum = 7, maximum = 7;
  EXPECT_NE(GetScrollRange(window_, SB_VERT, &minimum, &maximum), 0);
  EXPECT_EQ(minimum, -50);
  EXPECT_EQ(maximum, 500);
  EXPECT_EQ(SetScrollPos(window_, SB_VERT, 5000, TRUE), 20);
  EXPECT_EQ(SetScrollPos(window_, SB_VERT, -100, TRUE), 201);
  EXPECT_EQ(GetScrollPos(window_, SB_VERT), -50);
  pump_step("");
}

TEST_F(ScrollInfoTest, OnlyWhatTheMaskNamesIsFilled) {
  set(SIF_ALL, 600, 300, 20, 1);
  EXPECT_EQ(numbers(SIF_RANGE), "1..600 -1 -1 -1");
  EXPECT_EQ(numbers(SIF_PAGE), "-1..-1 300 -1 -1");
  EXPECT_EQ(numbers(SIF_POS), "-1..-1 -1 20 -1");
  EXPECT_EQ(numbers(SIF_TRACKPOS), "-1..-1 -1 -1 20");
}
TEST_F(ScrollInfoTest, StructureWithoutTheTrackPositionIsReadAndKept) {
  SCROLLINFO info{offsetof(SCROLLINFO, nTrackPos), SIF_ALL, 0, 600, 300, 20, -7};
  EXPECT_EQ(SetScrollInfo(window_, SB_VERT, &info, TRUE), 20);
  EXPECT_NE(GetScrollInfo(window_, SB_VERT, &info), 0);
  EXPECT_EQ(info.nTrackPos, -7);
}

TEST_F(ScrollInfoTest, CallsWithoutABarFail) {
  SCROLLINFO info{sizeof(SCROLLINFO), SIF_ALL, -1, -1, 0, -1, -1};
  EXPECT_EQ(GetScrollInfo(plain_, SB_VERT, &info), 0);
  EXPECT_EQ(GetScrollInfo(window_, SB_HORZ, &info), 0);
  EXPECT_EQ(info.nMin, -1);
  int minimum = 7, maximum = 7;
  GetScrollRange(plain_, SB_VERT, &minimum, &maximum);
  EXPECT_EQ(minimum, 0);
  EXPECT_EQ(maximum, 0);
  EXPECT_EQ(GetScrollPos(plain_, SB_VERT), 0);
}

TEST_F(ScrollInfoTest, BadArgumentsChangeNothing) {
  set(SIF_POS, 0, 0, 20);
  SCROLLINFO info{5, SIF_ALL, 0, 9, 1, 3, 0};
  EXPECT_EQ(SetScrollInfo(window_, SB_VERT, &info, TRUE), 0);
  EXPECT_EQ(GetScrollInfo(window_, SB_VERT, &info), 0);
  EXPECT_EQ(SetScrollInfo(window_, SB_VERT, nullptr, TRUE), 0);
  EXPECT_EQ(GetScrollInfo(window_, SB_VERT, nullptr), 0);
  info.cbSize = sizeof(info);
  for (const int bar : {SB_CTL, SB_BOTH, -1, 99}) {
    EXPECT_EQ(SetScrollInfo(window_, bar, &info, TRUE), 0) << bar;
    EXPECT_EQ(GetScrollInfo(window_, bar, &info), 0) << bar;
  }
  EXPECT_EQ(numbers(), "0..600 300 20 20");
}

}  // namespace
}  // namespace corvane::conformance
