// A host with a loop of its own: what is pending is dispatched, shown, and the next turn is known.
#include <poll.h>

#include <thread>

#include "tests/platform/conformance/support/window_test.h"
#include "tests/support/own_system.h"

namespace corvane::conformance {
namespace {

using testing::HasSubstr;

class HostLoopTest : public WindowTest {
 protected:
  auto turn(bool* quit = nullptr) { return own().windows.process_pending(quit); }
  int count(UINT message) { return recorder().count("main", message); }
  bool readable() {
    pollfd poller{own().windows.event_fd(), POLLIN, 0};
    return poll(&poller, 1, 0) == 1;
  }
  const HWND window_ = create("main", {.style = WS_POPUP | WS_VISIBLE, .place = {10, 10, 100, 50}});
};

TEST_F(HostLoopTest, DispatchesPaintsAndPresents) {
  PostMessageW(window_, WM_USER, 0, 0);
  EXPECT_EQ(turn(), std::nullopt) << "no timer: nothing to wait for";
  EXPECT_EQ(count(WM_USER), 1);
  EXPECT_EQ(count(WM_PAINT), 1);
  EXPECT_EQ(system::color_of(own().display.frame().at(20, 20)) & 0xFFFFFF, kWhite);
}

TEST_F(HostLoopTest, SaysWhenTheNextTimerIsDue) {
  SetTimer(window_, 1, 250, nullptr);
  SetTimer(window_, 2, 100, nullptr);
  EXPECT_EQ(turn(), 100U);
  advance(40);
  EXPECT_EQ(turn(), 60U);
  advance(60);
  EXPECT_EQ(turn(), 100U);
  EXPECT_EQ(count(WM_TIMER), 1);
  KillTimer(window_, 2);
  EXPECT_EQ(turn(), 150U);
}

TEST_F(HostLoopTest, TellsOfTheQuit) {
  bool quit = false;
  turn(&quit);
  EXPECT_FALSE(quit);
  PostQuitMessage(0);
  turn(&quit);
  EXPECT_TRUE(quit);
}

TEST_F(HostLoopTest, AnIdleProgramPresentsNothing) {
  turn();
  const int presents = own().display.presents();
  for (int turns = 0; turns < 20; ++turns) {
    advance(100);
    turn();
  }
  EXPECT_EQ(own().display.presents(), presents);
  draw(window_, {0, 0, 5, 5}, kRed);
  EXPECT_EQ(pixel(10, 10), kRed);
  EXPECT_EQ(own().display.presents(), presents + 1) << "who looks at the frame has it presented";
  EXPECT_EQ(count(WM_PAINT), 1);
}

TEST_F(HostLoopTest, DescriptorBecomesReadableByAPostFromAnotherThread) {
  ASSERT_GE(own().windows.event_fd(), 0);
  turn();
  EXPECT_FALSE(readable());
  std::thread([&] { PostMessageW(window_, WM_USER, 0, 0); }).join();
  EXPECT_TRUE(readable());
  turn();
  EXPECT_EQ(count(WM_USER), 1);
  EXPECT_FALSE(readable());
}

TEST_F(HostLoopTest, CountsAndDescribesWhatIsAlive) {
  EXPECT_EQ(living_windows(), 1);
  const HWND child = create(
      "child", {.parent = window_, .style = WS_CHILD, .place = {.width = 5, .height = 5}, .id = 7});
  SetTimer(child, 1, 10, nullptr);
  EXPECT_EQ(living_windows(), 2);
  EXPECT_EQ(own().windows.live_timers(), 1);
  SetWindowTextW(window_, L"\u0080\u0800\U00010000");
  const std::string tree = own().windows.window_tree();
  EXPECT_THAT(tree, HasSubstr(" \"\u0080\u0800\U00010000\" (10,10)-(110,60) focus active\n  Rec"));
  EXPECT_THAT(tree, HasSubstr(" \"child\" id=7 (10,10)-(15,15) hidden\n"));
  DestroyWindow(window_);
  EXPECT_EQ(living_windows(), 0);
  EXPECT_EQ(own().windows.live_timers(), 0);
}

TEST_F(HostLoopTest, DisplayInputReachesTheWindow) {
  turn();
  system::InputEvent move;
  move.kind = system::InputKind::mouse_move;
  move.position = {50, 30};
  own().display.push(move);
  turn();
  POINT point{};
  GetCursorPos(&point);
  EXPECT_EQ(point.x, 50);
  EXPECT_EQ(point.y, 30);
}

TEST_F(HostLoopTest, WindowThatFillsTheScreenFollowsItsSize) {
  MoveWindow(window_, 0, 0, 1280, 800, TRUE);
  turn();
  own().display.resize({400, 250});
  turn();
  EXPECT_EQ(text_of(window_rect(window_)), "0,0,400,250");
  EXPECT_EQ(system::color_of(own().display.frame().at(399, 249)) & 0xFFFFFF, kWhite);
}

// A display that is never smaller than a least size may lose its content all the same.
TEST_F(HostLoopTest, AResizeToTheSameSizeShowsEverythingAgain) {
  turn();
  const system::Surface black(1280, 800);
  own().display.present(black, system::Region(black.rect()));
  own().display.resize({1280, 800});
  turn();
  EXPECT_EQ(system::color_of(own().display.frame().at(20, 20)) & 0xFFFFFF, kWhite);
}

}  // namespace
}  // namespace corvane::conformance
