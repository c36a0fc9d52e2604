// A standard scroll bar worked with the mouse.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

// The bar: x 283 to 299, y 100 to 399; arrows 17 long; the thumb 133 long, at the trough's top
// (y 117 to 249) for position 0.
constexpr int bar_x = 290;
constexpr int bar_top = 100;
constexpr int up_arrow = bar_top + 5;
constexpr int down_arrow = bar_top + 295;
constexpr int thumb = bar_top + 60;
constexpr int below_thumb = bar_top + 200;

class ScrollBarTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    window_ = create(
        "pop", {.style = WS_POPUP | WS_VISIBLE | WS_VSCROLL, .place = {100, bar_top, 200, 300}});
    set(SIF_ALL, 600, 300, 0);
    step_after_each("pop");
    recorder().only({WM_NCLBUTTONDOWN, WM_SYSCOMMAND, WM_VSCROLL, WM_HSCROLL, WM_CAPTURECHANGED,
                     WM_LBUTTONDOWN, WM_LBUTTONUP, WM_NCLBUTTONUP});
    settle();
  }
  void set(UINT mask, int maximum, UINT page, int position) {
    SCROLLINFO info{sizeof(SCROLLINFO), mask, 0, maximum, page, position, 0};
    SetScrollInfo(window_, SB_VERT, &info, TRUE);
  }
  int track_position() const {
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_TRACKPOS;
    GetScrollInfo(window_, SB_VERT, &info);
    return info.nTrackPos;
  }

  // One step of the script follows each message of the bar.
  void step_after_each(const std::string& name) {
    for (const UINT message : {WM_VSCROLL, WM_HSCROLL}) {
      recorder().before_default(name, message, [this] {
        if (step_ < script_.size()) script_[step_++]();
      });
    }
  }
  using Script = std::vector<std::function<void()>>;
  static std::function<void()> pointer_to(int x, int y) {
    return [x, y] { SetCursorPos(x, y); };
  }
  static void button_up() { send_mouse(MOUSEEVENTF_LEFTUP); }
  static void nothing() {}

  void work(int x, int y, Script script) {
    script_ = std::move(script);
    step_ = 0;
    move_to(x, y);
    recorder().clear();
    press();
    EXPECT_EQ(step_, script_.size());
    EXPECT_EQ(GetCapture(), nullptr);
  }

  HWND window_ = nullptr;
  Script script_;
  std::size_t step_ = 0;
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

struct HoldCase {
  const char* label;
  int y;
  const char* code;
};

class ScrollHoldTest : public ScrollBarTest, public testing::WithParamInterface<HoldCase> {};

TEST_P(ScrollHoldTest, ActsAtThePressAndAgainWhileHeld) {
  const HoldCase& given = GetParam();
  set(SIF_POS, 0, 0, 150);  // the thumb is in the middle, y 183 to 315
  std::vector<DWORD> times;
  const DWORD start = GetTickCount();
  const auto note = [&] { times.push_back(GetTickCount() - start); };
  work(bar_x, given.y, {note, note, note, [&] {
                          note();
                          button_up();
                        }});
  const std::string at = std::to_string(bar_x) + "," + std::to_string(given.y);
  const std::string acts = std::string(" > WM_VSCROLL ") + given.code + " 0";
  EXPECT_TRUE(log_is("pop (q) WM_NCLBUTTONDOWN 7 " + at + " { WM_SYSCOMMAND 0xF077 {" +
                     acts.substr(2) + acts + acts + acts +
                     " > WM_CAPTURECHANGED none > WM_VSCROLL ENDSCROLL 0 } }"));
  EXPECT_EQ(times, (std::vector<DWORD>{0, 250, 300, 350}));
}

INSTANTIATE_TEST_SUITE_P(, ScrollHoldTest,
                         testing::Values(HoldCase{"UpArrow", up_arrow, "LINEUP"},
                                         HoldCase{"DownArrow", down_arrow, "LINEDOWN"},
                                         HoldCase{"TroughAbove", bar_top + 30, "PAGEUP"},
                                         HoldCase{"TroughBelow", bar_top + 260, "PAGEDOWN"}),
                         [](const auto& instance) { return instance.param.label; });

TEST_F(ScrollBarTest, QuickClickActsOnce) {
  move_to(bar_x, down_arrow);
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  send_mouse(MOUSEEVENTF_LEFTUP);
  recorder().only({WM_VSCROLL});
  recorder().clear();
  pump();
  EXPECT_TRUE(log_is("pop WM_VSCROLL LINEDOWN 0 > WM_VSCROLL ENDSCROLL 0"));
}

TEST_F(ScrollBarTest, SecondOfTwoQuickClicksActsToo) {
  const HWND clicked = create("clicked", {.style = WS_POPUP | WS_VISIBLE | WS_VSCROLL,
                                          .place = {400, 100, 200, 300},
                                          .class_style = CS_DBLCLKS});
  ASSERT_NE(clicked, nullptr);
  move_to(590, down_arrow);
  recorder().only({WM_VSCROLL});
  recorder().clear();
  for (int count = 0; count < 4; ++count) {
    send_mouse(count % 2 == 0 ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP);
  }
  pump();
  EXPECT_TRUE(
      log_is("clicked WM_VSCROLL LINEDOWN 0 > WM_VSCROLL ENDSCROLL 0 >"
             "WM_VSCROLL LINEDOWN 0 > WM_VSCROLL ENDSCROLL 0"));
}

TEST_F(ScrollBarTest, HeldArrowRestsWhileThePointerIsElsewhere) {
  bool was_away = false;
  // A timer stands for whoever looks after the pointer left.
  recorder().before_default("pop", WM_TIMER, [&] {
    was_away = true;
    KillTimer(window_, 1);
    EXPECT_EQ(step_, 1U) << "no repeat while away";
    SetCursorPos(bar_x, down_arrow - 3);
  });
  work(bar_x, down_arrow,
       {[&] {
          SetTimer(window_, 1, 2000, nullptr);
          SetCursorPos(bar_x, 200);
        },
        button_up});
  EXPECT_TRUE(was_away);
}

TEST_F(ScrollBarTest, PagingStopsWhenTheThumbHasCome) {
  const auto page = [&] { set(SIF_POS, 0, 0, GetScrollPos(window_, SB_VERT) + 100); };
  recorder().before_default("pop", WM_TIMER, [] { button_up(); });
  SetTimer(window_, 1, 3000, nullptr);
  // Thumb of 133: at 100 it covers 61 to 193 of the bar, at 200 it covers 105 to 237.
  work(bar_x, below_thumb, {page, page});
  EXPECT_EQ(GetScrollPos(window_, SB_VERT), 200);
}

TEST_F(ScrollBarTest, ThumbFollowsThePointer) {
  std::vector<int> seen;
  const auto note = [&](std::function<void()> next) {
    return [&, next] {
      seen.push_back(track_position());
      EXPECT_EQ(GetScrollPos(window_, SB_VERT), 0) << "the program has not set it";
      next();
    };
  };
  work(bar_x, thumb,
       {note(pointer_to(bar_x, thumb + 66)), note(pointer_to(bar_x + 30, thumb + 133)),
        note(pointer_to(bar_x, thumb + 100)), note(button_up), note(nothing)});
  EXPECT_TRUE(
      log_is("pop (q) WM_NCLBUTTONDOWN 7 290,160 { WM_SYSCOMMAND 0xF077 {"
             "WM_VSCROLL THUMBTRACK 0 > WM_VSCROLL THUMBTRACK 149 > WM_VSCROLL THUMBTRACK 301 >"
             "WM_VSCROLL THUMBTRACK 226 > WM_CAPTURECHANGED none >"
             "WM_VSCROLL THUMBPOSITION 226 > WM_VSCROLL ENDSCROLL 0 } }"));
  EXPECT_EQ(seen, (std::vector<int>{0, 149, 301, 226, 226}));
  EXPECT_EQ(track_position(), 0) << "the thumb is let go";
}

struct TrackCase {
  const char* label;
  int start;      // position
  int grab;       // along the bar
  POINT pointer;  // on the bar, from its left and top
  int position;
};

class ScrollTrackTest : public ScrollBarTest, public testing::WithParamInterface<TrackCase> {};

TEST_P(ScrollTrackTest, PositionIsWhereTheThumbIsPut) {
  const TrackCase& given = GetParam();
  set(SIF_POS, 0, 0, given.start);
  int seen = -1;
  work(bar_x, bar_top + given.grab,
       {pointer_to(283 + given.pointer.x, bar_top + given.pointer.y), [&] {
          seen = track_position();
          button_up();
        }});
  EXPECT_EQ(seen, given.position);
}

INSTANTIATE_TEST_SUITE_P(, ScrollTrackTest,
                         testing::Values(TrackCase{"FromTopToEnd", 0, 17, {5, 150}, 301},
                                         TrackCase{"BeyondTheEnd", 0, 60, {5, 290}, 301},
                                         TrackCase{"FarBeyondTheEnd", 0, 60, {5, 600}, 301},
                                         TrackCase{"FromTheEndBack", 301, 282, {5, 149}, 0},
                                         TrackCase{"BeyondTheBeginning", 150, 100, {5, -90}, 0},
                                         TrackCase{"OnePixel", 0, 60, {5, 61}, 2},
                                         TrackCase{"ALittleSideways", 0, 60, {60, 126}, 149},
                                         TrackCase{"FarToTheRight", 100, 90, {400, 190}, 100},
                                         TrackCase{"FarToTheLeft", 100, 90, {-280, 190}, 100}),
                         [](const auto& instance) { return instance.param.label; });

TEST_F(ScrollBarTest, ThumbThatStaysMeansThePositionItHad) {
  set(SIF_ALL, 100000, 10, 4321);  // many positions share a pixel
  std::vector<int> seen;
  const auto note = [&] { seen.push_back(track_position()); };
  work(bar_x, bar_top + 34,
       {[&] {
          note();
          SetCursorPos(bar_x + 5, bar_top + 34);
        },
        [&] {
          note();
          button_up();
        },
        note});
  EXPECT_EQ(seen, (std::vector<int>{4321, 4321, 4321}));
}

TEST_F(ScrollBarTest, HighWordHasSixteenBitsAndTheTrackPositionAll) {
  set(SIF_ALL, 1000000, 0, 0);
  int seen = 0;
  work(bar_x, bar_top + 20, {pointer_to(bar_x, bar_top + 600), [&] {
                               seen = track_position();
                               button_up();
                             }});
  EXPECT_EQ(seen, 1000000);
  EXPECT_TRUE(
      log_is("pop (q) WM_NCLBUTTONDOWN { WM_SYSCOMMAND { WM_VSCROLL THUMBTRACK 0 >"
             "WM_VSCROLL THUMBTRACK 16960 > WM_CAPTURECHANGED none >"
             "WM_VSCROLL THUMBPOSITION 16960 > WM_VSCROLL ENDSCROLL 0 } }"));
}

TEST_F(ScrollBarTest, LostCaptureEndsItWithoutAPosition) {
  work(bar_x, thumb, {pointer_to(bar_x, thumb + 50), [] { ReleaseCapture(); }});
  EXPECT_TRUE(
      log_is("pop (q) WM_NCLBUTTONDOWN { WM_SYSCOMMAND { WM_VSCROLL THUMBTRACK 0 >"
             "WM_VSCROLL THUMBTRACK 113 { WM_CAPTURECHANGED none } >"
             "WM_VSCROLL ENDSCROLL 0 } }"));
}

TEST_F(ScrollBarTest, CaptureGivenAwayIsLeftAlone) {
  const HWND other = settled_popup("other", 500, 100, 50, 50);
  script_ = {[&] { SetCapture(other); }};
  move_to(bar_x, thumb);
  press();
  EXPECT_EQ(GetCapture(), other);
  ReleaseCapture();
}

TEST_F(ScrollBarTest, EscapeGivesThePositionBack) {
  work(bar_x, thumb, {pointer_to(bar_x, thumb + 50), [] { send_key(VK_ESCAPE, true); }, nothing});
  EXPECT_TRUE(
      log_is("pop (q) WM_NCLBUTTONDOWN { WM_SYSCOMMAND { WM_VSCROLL THUMBTRACK 0 >"
             "WM_VSCROLL THUMBTRACK 113 > WM_VSCROLL THUMBTRACK 0 >"
             "WM_CAPTURECHANGED none > WM_VSCROLL THUMBPOSITION 0 >"
             "WM_VSCROLL ENDSCROLL 0 } }"));
}

TEST_F(ScrollBarTest, ReleaseTakenByAnotherLoopEndsIt) {
  script_ = {[&] {
    send_mouse(MOUSEEVENTF_LEFTUP);
    pump();  // as a message box of the handler would
  }};
  move_to(bar_x, down_arrow);
  recorder().clear();
  press();
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(recorder().count("pop", WM_VSCROLL), 2);
}

TEST_F(ScrollBarTest, BarThatGoesWhileHeldEndsIt) {
  work(bar_x, down_arrow, {[&] { ShowScrollBar(window_, SB_VERT, FALSE); }, nothing});
  EXPECT_EQ(recorder().count("pop", WM_VSCROLL), 2);
}

TEST_F(ScrollBarTest, GreyedBarDoesNothing) {
  set(SIF_PAGE | SIF_DISABLENOSCROLL, 0, 601, 0);
  work(bar_x, down_arrow, {});
  EXPECT_TRUE(log_is("pop (q) WM_NCLBUTTONDOWN { WM_SYSCOMMAND 0xF077 }"));
  set(SIF_PAGE, 0, 300, 0);
  work(bar_x, down_arrow, {button_up});
  EXPECT_EQ(recorder().count("pop", WM_VSCROLL), 2);
}

TEST_F(ScrollBarTest, WheelAndKeysOfTheHeldBarDoNotScroll) {
  recorder().only({WM_VSCROLL, WM_MOUSEWHEEL});
  work(bar_x, thumb, {[] {
         send_mouse(MOUSEEVENTF_WHEEL, 120);
         send_key(VK_DOWN, true);
         send_key(VK_DOWN, false);
         button_up();
       }});
  EXPECT_TRUE(
      log_is("pop WM_VSCROLL THUMBTRACK 0 > WM_VSCROLL THUMBPOSITION 0 >"
             "WM_VSCROLL ENDSCROLL 0"));
}

TEST_F(ScrollBarTest, DefaultHandlingDoesNotScrollForKeysOrTheWheel) {
  SetFocus(window_);
  move_to(150, 200);
  for (const int key : {VK_DOWN, VK_NEXT, VK_END, VK_UP}) {
    key_down(key);
    key_up(key);
  }
  wheel(-120);
  EXPECT_TRUE(log_is(""));
  EXPECT_EQ(GetScrollPos(window_, SB_VERT), 0);
}

TEST_F(ScrollBarTest, ChildsBarWorksInItsOwnPlace) {
  const HWND child = settled_child("child", window_, 10, 20, 100, 150, WS_VSCROLL);
  step_after_each("child");
  SCROLLINFO info{sizeof(SCROLLINFO), SIF_ALL, 0, 99, 50, 0, 0};
  SetScrollInfo(child, SB_VERT, &info, TRUE);
  // Its bar: x 193 to 209, y 120 to 269; trough 116, thumb 58.
  work(200, 150, {pointer_to(200, 208), button_up});
  EXPECT_TRUE(
      log_is("child (q) WM_NCLBUTTONDOWN 7 200,150 { WM_SYSCOMMAND 0xF077 {"
             "WM_VSCROLL THUMBTRACK 0 > WM_VSCROLL THUMBTRACK 50 >"
             "WM_CAPTURECHANGED none > WM_VSCROLL THUMBPOSITION 50 >"
             "WM_VSCROLL ENDSCROLL 0 } }"));
}

TEST_F(ScrollBarTest, HorizontalBarIsTheSameLyingDown) {
  const HWND wide =
      create("wide", {.style = WS_POPUP | WS_VISIBLE | WS_HSCROLL, .place = {400, 100, 300, 200}});
  step_after_each("wide");
  SCROLLINFO info{sizeof(SCROLLINFO), SIF_ALL, 0, 600, 300, 0, 0};
  SetScrollInfo(wide, SB_HORZ, &info, TRUE);
  settle();
  // Thumb from x 417 to 549.
  work(430, 290, {pointer_to(563, 290), button_up});
  EXPECT_TRUE(
      log_is("wide (q) WM_NCLBUTTONDOWN 6 430,290 { WM_SYSCOMMAND 0xF086 {"
             "WM_HSCROLL THUMBTRACK 0 > WM_HSCROLL THUMBTRACK 301 >"
             "WM_CAPTURECHANGED none > WM_HSCROLL THUMBPOSITION 301 >"
             "WM_HSCROLL ENDSCROLL 0 } }"));
}

TEST_F(ScrollBarTest, PointerOnTheBarIsAnArrowAndHasLeftTheClient) {
  SetCursor(LoadCursorW(nullptr, IDC_CROSS));
  move_to(150, 200);
  TRACKMOUSEEVENT request{sizeof(TRACKMOUSEEVENT), TME_LEAVE, window_, 0};
  ASSERT_NE(TrackMouseEvent(&request), 0);
  recorder().only({WM_MOUSELEAVE});
  move_to(bar_x, 200);
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
  EXPECT_EQ(recorder().count("pop", WM_MOUSELEAVE), 1);
}

struct DoomCase {
  const char* label;
  int y;
  UINT message;
  std::size_t after;  // messages of that kind that pass before
};

using ScrollDoomCase = std::tuple<DoomCase, const char*>;  // and who is destroyed

class ScrollDoomTest : public ScrollBarTest, public testing::WithParamInterface<ScrollDoomCase> {};

TEST_P(ScrollDoomTest, WindowsMayBeDestroyedAtAnyPoint) {
  const auto& [given, victim] = GetParam();
  settled_popup("owner", 500, 100, 100, 100);
  settled_popup("parent", 600, 100, 300, 350, window("owner"));
  const HWND child = settled_child("child", window("parent"), 10, 0, 200, 300, WS_VSCROLL);
  SCROLLINFO info{sizeof(SCROLLINFO), SIF_ALL, 0, 600, 300, 0, 0};
  SetScrollInfo(child, SB_VERT, &info, TRUE);
  settle();
  std::size_t passed = 0;
  bool moved = false;
  for (const UINT message : {WM_VSCROLL, WM_CAPTURECHANGED, WM_PAINT, WM_TIMER, WM_SYSCOMMAND,
                             WM_NCLBUTTONDOWN, WM_USER}) {
    recorder().on("child", message,
                  [&, name = std::string(victim)](const Message& sent) -> std::optional<LRESULT> {
                    if (sent.message == WM_VSCROLL && !std::exchange(moved, true)) {
                      SetCursorPos(803, 300);
                    }
                    if (sent.message != given.message || passed++ != given.after) {
                      return std::nullopt;
                    }
                    DestroyWindow(window(name));
                    return std::nullopt;
                  });
  }
  SetTimer(window("owner"), 1, 600, nullptr);
  recorder().before_default("owner", WM_TIMER, [] { button_up(); });
  SetTimer(child, 1, 100, nullptr);
  PostMessageW(child, WM_USER, 0, 0);
  InvalidateRect(child, nullptr, TRUE);
  SetCursorPos(803, given.y);
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  if (std::string(victim) == "owner") SetTimer(window_, 1, 600, nullptr);
  recorder().before_default("pop", WM_TIMER, [] { button_up(); });
  pump();
  EXPECT_GT(passed, given.after) << "the message never came";
  EXPECT_EQ(IsWindow(child), 0);
  EXPECT_EQ(GetCapture(), nullptr);
  button_up();
  pump();
  work(bar_x, down_arrow, {button_up});
}

const DoomCase doom_cases[] = {{"Press", down_arrow, WM_NCLBUTTONDOWN, 0},
                               {"Command", down_arrow, WM_SYSCOMMAND, 0},
                               {"FirstLine", down_arrow, WM_VSCROLL, 0},
                               {"FirstTrack", thumb, WM_VSCROLL, 0},
                               {"LaterTrack", thumb, WM_VSCROLL, 1},
                               {"ThumbPosition", thumb, WM_VSCROLL, 2},
                               {"EndOfTheThumb", thumb, WM_VSCROLL, 3},
                               {"EndOfTheLine", down_arrow, WM_VSCROLL, 1},
                               {"CaptureChanged", thumb, WM_CAPTURECHANGED, 0},
                               {"PaintInTheLoop", thumb, WM_PAINT, 0},
                               {"TimerInTheLoop", thumb, WM_TIMER, 1},
                               {"PostedInTheLoop", thumb, WM_USER, 0}};

INSTANTIATE_TEST_SUITE_P(, ScrollDoomTest,
                         testing::Combine(testing::ValuesIn(doom_cases),
                                          testing::Values("child", "parent", "owner")),
                         [](const auto& instance) {
                           return std::string(std::get<0>(instance.param).label) + "_" +
                                  std::get<1>(instance.param);
                         });

}  // namespace
}  // namespace corvane::conformance
