// A standard scroll bar that comes and goes, and the client area beside it.
#include "tests/platform/conformance/support/scroll_test.h"

namespace corvane::conformance {
namespace {

class ScrollFrameTest : public ScrollTest {
 protected:
  bool has_style() const {
    return (static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE)) & WS_VSCROLL) != 0;
  }
};

TEST_F(ScrollFrameTest, BarIsTakenFromTheClient) {
  recorder().only({WM_SIZE});
  create("both", plan(WS_VSCROLL | WS_HSCROLL));
  pump_step("two bars");
  MoveWindow(window_, 100, 100, 250, 120, TRUE);
  pump_step("resized");
  MoveWindow(window_, 100, 100, 10, 120, TRUE);
  pump_step("no room for the bar");
  const HWND plain = create("plain", plan(0));
  settle();
  ShowScrollBar(plain, SB_VERT, TRUE);
  pump_step("a style that the window never had");
  ShowScrollBar(plain, SB_BOTH, TRUE);
  pump_step("the other too");
  ShowScrollBar(plain, SB_BOTH, FALSE);
  pump_step("none");
}

TEST_F(ScrollFrameTest, ComesAndGoesWithThePage) {
  std::string seen;
  recorder().on("pop", WM_SIZE, [&](const Message& sent) -> std::optional<LRESULT> {
    seen = text_of(client_rect(sent.window)) + (has_style() ? " bar" : " no bar");
    return 0;
  });
  set(SIF_PAGE, 0, 601, 0);
  pump_step("a page that shows everything");
  EXPECT_EQ(seen, "0,0,200,300 no bar") << "the program sees the new state when told the size";
  set(SIF_PAGE, 0, 300, 0);
  pump_step("a shorter one");
  set(SIF_PAGE | SIF_DISABLENOSCROLL, 0, 601, 0);
  pump_step("SIF_DISABLENOSCROLL keeps the bar");
  ShowWindow(window_, SW_HIDE);
  settle();
  set(SIF_PAGE, 0, 601, 0);
  pump_step("a hidden window gets the messages without a paint");
}

struct Need {
  const char* label;
  UINT mask;
  int maximum;
  UINT page;
  bool shown;
};

TEST_F(ScrollFrameTest, RangeAndPageDecideWhetherItIsThere) {
  for (const Need& given :
       {Need{"page one short", SIF_PAGE, 0, 100, true}, Need{"whole page", SIF_PAGE, 0, 101, false},
        Need{"longer page", SIF_PAGE, 0, 5000, false}, Need{"no range", SIF_RANGE, 0, 0, false},
        Need{"no range, no page", SIF_RANGE | SIF_PAGE, 0, 0, false},
        Need{"shorter range", SIF_RANGE, 9, 0, false},
        Need{"long range", SIF_RANGE, 11, 0, true}}) {
    for (const BOOL before : {TRUE, FALSE}) {
      set(SIF_ALL, 100, 10, 0);
      ShowScrollBar(window_, SB_VERT, before);
      set(given.mask, given.maximum, given.page, 0);
      EXPECT_EQ(has_style(), given.shown) << given.label << before;
      EXPECT_EQ(client_rect(window_).right, given.shown ? 183 : 200) << given.label << before;
    }
  }
  for (const int maximum : {0, 50}) {
    SetScrollRange(window_, SB_VERT, 0, maximum, TRUE);
    EXPECT_EQ(has_style(), maximum != 0);
  }
}

TEST_F(ScrollFrameTest, ShowScrollBarKeepsTheNumbers) {
  for (const char* const times : {"hidden", "hidden again"}) {
    EXPECT_NE(ShowScrollBar(window_, SB_VERT, FALSE), 0);
    pump_step(times);
  }
  const int position = set(SIF_POS, 0, 0, 44);
  pump();
  step("a position alone brings nothing back", position);
  EXPECT_EQ(numbers(), "0..600 300 44 44");
  EXPECT_NE(ShowScrollBar(window_, SB_VERT, TRUE), 0);
  pump_step("shown");
}

}  // namespace
}  // namespace corvane::conformance
