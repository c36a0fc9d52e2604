// A standard scroll bar worked with the mouse.
#include "tests/platform/conformance/support/scroll_test.h"

namespace corvane::conformance {
namespace {

// The bar: x 283 to 299, y 100 to 399; arrows 17 long; the thumb 133 long, at the trough's top
// (y 117 to 249) for position 0.
constexpr int kBarX = 290;
constexpr int kBarTop = 100;
constexpr int kUpArrow = kBarTop + 5;
constexpr int kDownArrow = kBarTop + 295;
constexpr int kThumb = kBarTop + 60;

class ScrollBarTest : public ScrollTest {
 protected:
  ScrollBarTest() {
    script_after_each("pop");
    recorder().only({WM_NCLBUTTONDOWN, WM_NCLBUTTONDBLCLK, WM_SYSCOMMAND, WM_VSCROLL, WM_HSCROLL,
                     WM_CAPTURECHANGED, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_NCLBUTTONUP,
                     WM_MOUSEWHEEL});
  }
  // One action of the script follows each message of the bar.
  using Script = std::vector<std::function<void()>>;
  void script_after_each(const std::string& name) {
    for (const UINT message : {WM_VSCROLL, WM_HSCROLL}) {
      recorder().before_default(name, message, [this] {
        seen_.push_back(track_position());
        if (done_ < script_.size()) script_[done_++]();
      });
    }
  }
  static std::function<void()> pointer_to(int x, int y) {
    return [x, y] { SetCursorPos(x, y); };
  }
  static void button_up() { send_mouse(MOUSEEVENTF_LEFTUP); }
  static void nothing() {}

  // Presses there; what was in the track position at each message is in seen_.
  void work(int x, int y, Script script) {
    script_ = std::move(script);
    done_ = 0;
    seen_.clear();
    move_to(x, y);
    recorder().clear();
    press();
    EXPECT_EQ(done_, script_.size());
  }

  Script script_;
  std::size_t done_ = 0;
  std::vector<int> seen_;
};

TEST_F(ScrollBarTest, HitCodeIsThatOfTheBar) {
  struct Place {
    int x, y;
    LRESULT code;
  };
  for (const Place& each : {Place{282, 200, HTCLIENT}, Place{283, 100, HTVSCROLL},
                            Place{299, 399, HTVSCROLL}, Place{300, 200, HTNOWHERE}}) {
    EXPECT_EQ(SendMessageW(window_, WM_NCHITTEST, 0, MAKELPARAM(each.x, each.y)), each.code)
        << each.x;
  }
  ShowScrollBar(window_, SB_VERT, FALSE);
  EXPECT_EQ(SendMessageW(window_, WM_NCHITTEST, 0, MAKELPARAM(283, 200)), HTCLIENT);
}

TEST_F(ScrollBarTest, ActsAtThePressAndAgainWhileHeld) {
  set(SIF_POS, 0, 0, 150);  // the thumb is in the middle, y 183 to 315
  for (const int y : {kUpArrow, kDownArrow, kBarTop + 30, kBarTop + 260}) {
    std::vector<DWORD> times;
    const DWORD start = GetTickCount();
    const auto note = [&] { times.push_back(GetTickCount() - start); };
    work(kBarX, y, {note, note, note, [&] {
                      note();
                      button_up();
                    }});
    step("at " + std::to_string(y - kBarTop));
    EXPECT_EQ(times, (std::vector<DWORD>{0, 250, 300, 350}));
  }
}

TEST_F(ScrollBarTest, QuickClicksActOnceEach) {
  create("clicked", {.style = WS_POPUP | WS_VISIBLE | WS_VSCROLL,
                     .place = {400, 100, 200, 300},
                     .class_style = CS_DBLCLKS});
  move_to(590, kDownArrow);
  recorder().only({WM_VSCROLL});
  settle();
  for (int count = 0; count < 4; ++count) {
    send_mouse(count % 2 == 0 ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP);
  }
  pump();
  step();
}

TEST_F(ScrollBarTest, HeldArrowRestsWhileThePointerIsElsewhere) {
  bool was_away = false;
  // A timer stands for whoever looks after the pointer left.
  recorder().before_default("pop", WM_TIMER, [&] {
    was_away = true;
    KillTimer(window_, 1);
    EXPECT_EQ(done_, 1U) << "no repeat while away";
    SetCursorPos(kBarX, kDownArrow - 3);
  });
  work(kBarX, kDownArrow,
       {[&] {
          SetTimer(window_, 1, 2000, nullptr);
          SetCursorPos(kBarX, 200);
        },
        button_up});
  EXPECT_TRUE(was_away);
}

TEST_F(ScrollBarTest, PagingStopsWhenTheThumbHasCome) {
  const auto page = [&] { set(SIF_POS, 0, 0, GetScrollPos(window_, SB_VERT) + 100); };
  recorder().before_default("pop", WM_TIMER, [] { button_up(); });
  SetTimer(window_, 1, 3000, nullptr);
  // Thumb of 133: at 100 it covers 61 to 193 of the bar, at 200 it covers 105 to 237.
  work(kBarX, kBarTop + 200, {page, page});
  EXPECT_EQ(GetScrollPos(window_, SB_VERT), 200);
}

TEST_F(ScrollBarTest, ThumbFollowsThePointer) {
  work(kBarX, kThumb,
       {pointer_to(kBarX, kThumb + 66), pointer_to(kBarX + 30, kThumb + 133),
        pointer_to(kBarX, kThumb + 100), button_up, nothing});
  step();
  EXPECT_EQ(seen_, (std::vector<int>{0, 149, 301, 226, 226, 0}));
  EXPECT_EQ(GetScrollPos(window_, SB_VERT), 0) << "the program has not set it";
  EXPECT_EQ(track_position(), 0) << "the thumb is let go";
}

TEST_F(ScrollBarTest, TrackPositionIsWhereTheThumbIsPut) {
  struct Track {
    const char* label;
    int start;      // position
    int grab;       // along the bar
    POINT pointer;  // on the bar, from its left and top
    int position;
  };
  for (const Track& given :
       {Track{"from top to end", 0, 17, {5, 150}, 301},
        Track{"beyond the end", 0, 60, {5, 290}, 301},
        Track{"far beyond the end", 0, 60, {5, 600}, 301},
        Track{"from the end back", 301, 282, {5, 149}, 0},
        Track{"beyond the beginning", 150, 100, {5, -90}, 0}, Track{"one pixel", 0, 60, {5, 61}, 2},
        Track{"a little sideways", 0, 60, {60, 126}, 149},
        Track{"far to the right", 100, 90, {400, 190}, 100},
        Track{"far to the left", 100, 90, {-280, 190}, 100}}) {
    set(SIF_POS, 0, 0, given.start);
    work(kBarX, kBarTop + given.grab,
         {pointer_to(283 + given.pointer.x, kBarTop + given.pointer.y), button_up});
    EXPECT_EQ(seen_.at(1), given.position) << given.label;
  }
}

TEST_F(ScrollBarTest, ThumbThatStaysMeansThePositionItHad) {
  set(SIF_ALL, 100000, 10, 4321);  // many positions share a pixel
  work(kBarX, kBarTop + 34, {pointer_to(kBarX + 5, kBarTop + 34), button_up, nothing});
  EXPECT_EQ(seen_, (std::vector<int>{4321, 4321, 4321, 4321}));
}

TEST_F(ScrollBarTest, HighWordHasSixteenBitsAndTheTrackPositionAll) {
  set(SIF_ALL, 1000000, 0, 0);
  work(kBarX, kBarTop + 20, {pointer_to(kBarX, kBarTop + 600), button_up});
  EXPECT_EQ(seen_.at(1), 1000000);
  step();
}

TEST_F(ScrollBarTest, OtherEnds) {
  work(kBarX, kThumb, {pointer_to(kBarX, kThumb + 50), [] { ReleaseCapture(); }});
  step("a lost capture ends it without a position");
  work(kBarX, kThumb, {pointer_to(kBarX, kThumb + 50), [] { send_key(VK_ESCAPE, true); }, nothing});
  step("Escape gives the position back");
  work(kBarX, kDownArrow, {[&] {
         send_mouse(MOUSEEVENTF_LEFTUP);
         pump();  // as a message box of the handler would
       }});
  step("the release is taken by another loop");
  const HWND other = settled_popup("other", 500, 100, 50, 50);
  work(kBarX, kThumb, {[&] { SetCapture(other); }});
  step("a capture given away is left alone");
  ReleaseCapture();
  work(kBarX, kDownArrow, {[&] { ShowScrollBar(window_, SB_VERT, FALSE); }, nothing});
  step("the bar goes while held");
}

TEST_F(ScrollBarTest, GreyedBarDoesNothing) {
  set(SIF_PAGE | SIF_DISABLENOSCROLL, 0, 601, 0);
  work(kBarX, kDownArrow, {});
  step("grey");
  set(SIF_PAGE, 0, 300, 0);
  work(kBarX, kDownArrow, {button_up});
  step("needed again");
}

TEST_F(ScrollBarTest, WheelAndKeysDoNotScroll) {
  work(kBarX, kThumb, {[] {
         send_mouse(MOUSEEVENTF_WHEEL, 120);
         send_key(VK_DOWN, true);
         send_key(VK_DOWN, false);
         button_up();
       }});
  step("while the bar is held");
  SetFocus(window_);
  move_to(150, 200);
  for (const int key : {VK_DOWN, VK_NEXT, VK_END, VK_UP}) {
    key_down(key);
    key_up(key);
  }
  wheel(-120);
  step("by the default handling");
  EXPECT_EQ(GetScrollPos(window_, SB_VERT), 0);
}

TEST_F(ScrollBarTest, OtherBars) {
  const HWND child = settled_child("child", window_, 10, 20, 100, 150, WS_VSCROLL);
  script_after_each("child");
  set_bar(child, SB_VERT, SIF_ALL, 99, 50, 0);
  forget();
  // Its bar: x 193 to 209, y 120 to 269; trough 116, thumb 58.
  work(200, 150, {pointer_to(200, 208), button_up});
  step("of a child, in its own place");
  const HWND wide =
      create("wide", {.style = WS_POPUP | WS_VISIBLE | WS_HSCROLL, .place = {400, 100, 300, 200}});
  script_after_each("wide");
  set_bar(wide, SB_HORZ, SIF_ALL, 600, 300, 0);
  settle();
  // Thumb from x 417 to 549.
  work(430, 290, {pointer_to(563, 290), button_up});
  step("horizontal");
}

TEST_F(ScrollBarTest, PointerOnTheBarIsAnArrowAndHasLeftTheClient) {
  SetCursor(LoadCursorW(nullptr, IDC_CROSS));
  move_to(150, 200);
  TRACKMOUSEEVENT request{sizeof(TRACKMOUSEEVENT), TME_LEAVE, window_, 0};
  ASSERT_NE(TrackMouseEvent(&request), 0);
  recorder().only({WM_MOUSELEAVE});
  move_to(kBarX, 200);
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
  EXPECT_EQ(recorder().count("pop", WM_MOUSELEAVE), 1);
}

}  // namespace
}  // namespace corvane::conformance
