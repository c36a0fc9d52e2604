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
  SCROLLINFO numbers() const {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    GetScrollInfo(window_, SB_VERT, &info);
    return info;
  }
  HWND window_ = create("pop", plan(WS_VSCROLL));
};

}  // namespace corvane::conformance
