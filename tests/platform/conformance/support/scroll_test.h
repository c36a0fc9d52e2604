#pragma once
// A window with a vertical scroll bar: x 283 to 299, y 100 to 399, of 600 with a page of 300.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {

class ScrollTest : public WindowTest {
 protected:
  ScrollTest() {
    set(SIF_ALL, 600, 300, 0);
    settle();
  }
  static WindowPlan plan(DWORD style) {
    return {.style = WS_POPUP | WS_VISIBLE | style, .place = {100, 100, 200, 300}};
  }
  int set(UINT mask, int maximum, UINT page, int position, int minimum = 0) {
    return set_bar(window_, SB_VERT, mask, maximum, page, position, minimum);
  }
  static int set_bar(HWND window, int bar, UINT mask, int maximum, UINT page, int position,
                     int minimum = 0) {
    const SCROLLINFO info{sizeof(SCROLLINFO), mask, minimum, maximum, page, position, 0};
    return SetScrollInfo(window, bar, &info, TRUE);
  }
  // What the mask names, -1 for the rest: minimum..maximum page position track.
  std::string numbers(UINT mask = SIF_ALL) const {
    SCROLLINFO info{sizeof(SCROLLINFO), mask, -1, -1, static_cast<UINT>(-1), -1, -1};
    EXPECT_NE(GetScrollInfo(window_, SB_VERT, &info), 0);
    return std::to_string(info.nMin) + ".." + std::to_string(info.nMax) + " " +
           std::to_string(static_cast<int>(info.nPage)) + " " + std::to_string(info.nPos) + " " +
           std::to_string(info.nTrackPos);
  }
  int track_position() const {
    SCROLLINFO info{sizeof(SCROLLINFO), SIF_TRACKPOS, 0, 0, 0, 0, 0};
    GetScrollInfo(window_, SB_VERT, &info);
    return info.nTrackPos;
  }
  HWND window_ = create("pop", plan(WS_VSCROLL));
};

}  // namespace corvane::conformance
