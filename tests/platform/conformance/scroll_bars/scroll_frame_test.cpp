// A standard scroll bar that comes and goes, and the client area beside it.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

constexpr const char* bar_goes =
    "pop WM_WINDOWPOSCHANGING ~FRAMECHANGED > WM_NCCALCSIZE 1 >"
    "WM_WINDOWPOSCHANGED ~FRAMECHANGED { WM_SIZE 0 200x300 } >"
    "(q) WM_PAINT 0,0,200,300 fErase=0 { WM_ERASEBKGND }";
constexpr const char* bar_comes =
    "pop WM_WINDOWPOSCHANGING ~FRAMECHANGED > WM_NCCALCSIZE 1 >"
    "WM_WINDOWPOSCHANGED ~FRAMECHANGED { WM_SIZE 0 183x300 } >"
    "(q) WM_PAINT 0,0,183,300 fErase=0 { WM_ERASEBKGND }";

class ScrollFrameTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    window_ = create("pop", plan(WS_VSCROLL));
    set(SIF_ALL, 600, 300, 20);
    settle();
  }
  static WindowPlan plan(DWORD style) {
    return {.style = WS_POPUP | WS_VISIBLE | style, .place = {100, 100, 200, 300}};
  }
  int set(UINT mask, int maximum, UINT page, int position = 0) {
    SCROLLINFO info{sizeof(SCROLLINFO), mask, 0, maximum, page, position, 0};
    return SetScrollInfo(window_, SB_VERT, &info, TRUE);
  }
  bool has_style() const {
    return (static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE)) & WS_VSCROLL) != 0;
  }
  HWND window_ = nullptr;
};

TEST_F(ScrollFrameTest, BarIsTakenFromTheRightOfTheClient) {
  EXPECT_EQ(text_of(client_rect(window_)), "0,0,183,300");
  EXPECT_EQ(text_of(window_rect(window_)), "100,100,300,400");
}

TEST_F(ScrollFrameTest, HorizontalBarIsTakenFromTheBottom) {
  const HWND both = create("both", plan(WS_VSCROLL | WS_HSCROLL));
  EXPECT_EQ(text_of(client_rect(both)), "0,0,183,283");
}

TEST_F(ScrollFrameTest, ResizingKeepsTheBar) {
  MoveWindow(window_, 100, 100, 250, 120, TRUE);
  EXPECT_EQ(text_of(client_rect(window_)), "0,0,233,120");
  MoveWindow(window_, 100, 100, 10, 120, TRUE);
  EXPECT_EQ(text_of(client_rect(window_)), "0,0,10,120") << "no room for the bar";
}

TEST_F(ScrollFrameTest, DisappearsWhenThePageShowsEverything) {
  set(SIF_PAGE, 0, 601);
  EXPECT_FALSE(has_style());
  pump();
  EXPECT_TRUE(log_is(bar_goes));
  recorder().clear();
  set(SIF_PAGE, 0, 300);
  EXPECT_TRUE(has_style());
  pump();
  EXPECT_TRUE(log_is(bar_comes));
}

TEST_F(ScrollFrameTest, ProgramSeesTheNewStateWhenItIsToldTheSize) {
  std::string seen;
  recorder().on("pop", WM_SIZE, [&](const Message& sent) -> std::optional<LRESULT> {
    seen = text_of(client_rect(sent.window)) + (has_style() ? " bar" : " no bar");
    return 0;
  });
  set(SIF_PAGE, 0, 601);
  EXPECT_EQ(seen, "0,0,200,300 no bar");
}

struct NeedCase {
  const char* label;
  UINT mask;
  int maximum;
  UINT page;
  bool shown;
};

class ScrollNeedTest : public ScrollFrameTest, public testing::WithParamInterface<NeedCase> {};

TEST_P(ScrollNeedTest, DecidesWhetherTheBarIsThere) {
  const NeedCase& given = GetParam();
  set(SIF_ALL, 100, 10);
  for (const BOOL before : {TRUE, FALSE}) {
    ShowScrollBar(window_, SB_VERT, before);
    set(given.mask, given.maximum, given.page);
    EXPECT_EQ(has_style(), given.shown) << before;
    EXPECT_EQ(client_rect(window_).right, given.shown ? 183 : 200) << before;
  }
}

INSTANTIATE_TEST_SUITE_P(, ScrollNeedTest,
                         testing::Values(NeedCase{"PageOneShort", SIF_PAGE, 0, 100, true},
                                         NeedCase{"WholePage", SIF_PAGE, 0, 101, false},
                                         NeedCase{"LongerPage", SIF_PAGE, 0, 5000, false},
                                         NeedCase{"NoRange", SIF_RANGE, 0, 0, false},
                                         NeedCase{"NoRangeNoPage", SIF_RANGE | SIF_PAGE, 0, 0,
                                                  false},
                                         NeedCase{"ShorterRange", SIF_RANGE, 9, 0, false},
                                         NeedCase{"LongRange", SIF_RANGE, 11, 0, true}),
                         [](const auto& instance) { return instance.param.label; });

TEST_F(ScrollFrameTest, PositionAloneBringsNothingBack) {
  ShowScrollBar(window_, SB_VERT, FALSE);
  settle();
  EXPECT_EQ(set(SIF_POS, 0, 0, 44), 44);
  pump();
  EXPECT_FALSE(has_style());
  EXPECT_TRUE(log_is(""));
}

TEST_F(ScrollFrameTest, RangeOfNothingHidesItAlsoBySetScrollRange) {
  SetScrollRange(window_, SB_VERT, 0, 0, TRUE);
  EXPECT_FALSE(has_style());
  SetScrollRange(window_, SB_VERT, 0, 50, TRUE);
  EXPECT_TRUE(has_style());
}

TEST_F(ScrollFrameTest, DisableNoScrollKeepsTheBar) {
  set(SIF_PAGE | SIF_DISABLENOSCROLL, 0, 601);
  pump();
  EXPECT_TRUE(has_style());
  EXPECT_TRUE(log_is(""));
  EXPECT_EQ(text_of(client_rect(window_)), "0,0,183,300");
}

TEST_F(ScrollFrameTest, ShowScrollBarKeepsTheNumbers) {
  EXPECT_NE(ShowScrollBar(window_, SB_VERT, FALSE), 0);
  EXPECT_FALSE(has_style());
  pump();
  EXPECT_TRUE(log_is(bar_goes));
  recorder().clear();
  EXPECT_NE(ShowScrollBar(window_, SB_VERT, FALSE), 0);
  EXPECT_TRUE(log_is(""));
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_ALL;
  EXPECT_NE(GetScrollInfo(window_, SB_VERT, &info), 0);
  EXPECT_EQ(info.nMax, 600);
  EXPECT_EQ(info.nPage, 300U);
  EXPECT_EQ(info.nPos, 20);
  EXPECT_NE(ShowScrollBar(window_, SB_VERT, TRUE), 0);
  pump();
  EXPECT_TRUE(log_is(bar_comes));
}

TEST_F(ScrollFrameTest, ShowScrollBarAddsAStyleThatTheWindowNeverHad) {
  const HWND plain = create("plain", plan(0));
  EXPECT_NE(ShowScrollBar(plain, SB_VERT, TRUE), 0);
  EXPECT_EQ(text_of(client_rect(plain)), "0,0,183,300");
  EXPECT_EQ(static_cast<DWORD>(GetWindowLongW(plain, GWL_STYLE)) & WS_VSCROLL, WS_VSCROLL);
  EXPECT_NE(ShowScrollBar(plain, SB_BOTH, TRUE), 0);
  EXPECT_EQ(text_of(client_rect(plain)), "0,0,183,283");
  EXPECT_NE(ShowScrollBar(plain, SB_BOTH, FALSE), 0);
  EXPECT_EQ(text_of(client_rect(plain)), "0,0,200,300");
}

TEST_F(ScrollFrameTest, HiddenWindowGetsTheMessagesWithoutAPaint) {
  ShowWindow(window_, SW_HIDE);
  settle();
  set(SIF_PAGE, 0, 601);
  pump();
  EXPECT_TRUE(
      log_is("pop WM_WINDOWPOSCHANGING ~FRAMECHANGED|NOREDRAW > WM_NCCALCSIZE 1 >"
             "WM_WINDOWPOSCHANGED { WM_SIZE 0 200x300 }"));
}

struct DoomCase {
  const char* label;
  UINT message;
};

class ScrollFrameDoom : public ScrollFrameTest, public testing::WithParamInterface<DoomCase> {};

TEST_P(ScrollFrameDoom, WindowMayBeDestroyedWhileItsBarGoes) {
  recorder().on("pop", GetParam().message, [](const Message& sent) -> std::optional<LRESULT> {
    DestroyWindow(sent.window);
    return 0;
  });
  set(SIF_PAGE, 0, 601);
  pump();
  EXPECT_EQ(IsWindow(window_), 0);
}

INSTANTIATE_TEST_SUITE_P(, ScrollFrameDoom,
                         testing::Values(DoomCase{"PositionChanging", WM_WINDOWPOSCHANGING},
                                         DoomCase{"NcCalcSize", WM_NCCALCSIZE},
                                         DoomCase{"PositionChanged", WM_WINDOWPOSCHANGED},
                                         DoomCase{"Size", WM_SIZE}),
                         [](const auto& instance) { return instance.param.label; });

}  // namespace
}  // namespace corvane::conformance
