// A host with a loop of its own: what is pending is dispatched, shown, and the next turn is known.
#include <gtest/gtest.h>
#include <poll.h>

#include <optional>
#include <thread>

#include "tests/support/own_system.h"

namespace corvane::conformance {
namespace {

int timer_ticks = 0;
int user_messages = 0;
int paints = 0;

LRESULT CALLBACK count_messages(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_TIMER) ++timer_ticks;
  if (message == WM_USER) ++user_messages;
  if (message == WM_PAINT) ++paints;
  return DefWindowProcW(window, message, wparam, lparam);
}

class HostLoopTest : public testing::Test {
 protected:
  void SetUp() override {
    timer_ticks = user_messages = paints = 0;
    WNDCLASSW window_class{};
    window_class.lpfnWndProc = &count_messages;
    window_class.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    window_class.lpszClassName = L"Counted";
    ASSERT_NE(RegisterClassW(&window_class), 0);
    window_ = CreateWindowExW(0, L"Counted", L"main", WS_POPUP | WS_VISIBLE, 10, 10, 100, 50,
                              nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(window_, nullptr);
  }
  bool readable() const {
    pollfd poller{system_->event_fd(), POLLIN, 0};
    return poll(&poller, 1, 0) == 1;
  }
  std::optional<test::Desktop> desktop_{SIZE{300, 200}};
  system::HeadlessDisplay* display_ = &desktop_->own().display;
  system::WindowSystem* system_ = &desktop_->own().windows;
  HWND window_ = nullptr;
};

TEST_F(HostLoopTest, DispatchesPaintsAndPresents) {
  PostMessageW(window_, WM_USER, 0, 0);
  EXPECT_EQ(system_->process_pending(), std::nullopt) << "no timer: nothing to wait for";
  EXPECT_EQ(user_messages, 1);
  EXPECT_EQ(paints, 1);
  EXPECT_EQ(system::color_of(display_->frame().at(20, 20)) & 0xFFFFFF, RGB(255, 255, 255));
}

TEST_F(HostLoopTest, SaysWhenTheNextTimerIsDue) {
  SetTimer(window_, 1, 250, nullptr);
  SetTimer(window_, 2, 100, nullptr);
  EXPECT_EQ(system_->process_pending(), 100U);
  display_->advance(40);
  EXPECT_EQ(system_->process_pending(), 60U);
  display_->advance(60);
  EXPECT_EQ(system_->process_pending(), 100U);
  EXPECT_EQ(timer_ticks, 1);
  KillTimer(window_, 2);
  EXPECT_EQ(system_->process_pending(), 150U);
}

TEST_F(HostLoopTest, TellsOfTheQuit) {
  bool quit = false;
  system_->process_pending(&quit);
  EXPECT_FALSE(quit);
  PostQuitMessage(0);
  system_->process_pending(&quit);
  EXPECT_TRUE(quit);
}

TEST_F(HostLoopTest, AnIdleProgramPresentsNothing) {
  system_->process_pending();
  const int presents = display_->presents();
  for (int turns = 0; turns < 20; ++turns) {
    display_->advance(100);
    system_->process_pending();
  }
  EXPECT_EQ(display_->presents(), presents);
  EXPECT_EQ(paints, 1);
}

TEST_F(HostLoopTest, DescriptorBecomesReadableByAPostFromAnotherThread) {
  ASSERT_GE(system_->event_fd(), 0);
  system_->process_pending();
  EXPECT_FALSE(readable());
  std::thread([&] { PostMessageW(window_, WM_USER, 0, 0); }).join();
  EXPECT_TRUE(readable());
  system_->process_pending();
  EXPECT_EQ(user_messages, 1);
  EXPECT_FALSE(readable());
}

TEST_F(HostLoopTest, CountsWhatIsAlive) {
  EXPECT_EQ(system_->live_windows(), 1);
  const HWND child =
      CreateWindowExW(0, L"Counted", L"", WS_CHILD, 0, 0, 5, 5, window_, nullptr, nullptr, nullptr);
  SetTimer(child, 1, 10, nullptr);
  EXPECT_EQ(system_->live_windows(), 2);
  EXPECT_EQ(system_->live_timers(), 1);
  EXPECT_NE(system_->window_tree().find("Counted"), std::string::npos);
  DestroyWindow(window_);
  EXPECT_EQ(system_->live_windows(), 0);
  EXPECT_EQ(system_->live_timers(), 0);
}

TEST_F(HostLoopTest, SystemsEndDestroysTheWindows) {
  desktop_.reset();
  EXPECT_EQ(IsWindow(window_), 0);
  EXPECT_EQ(system::WindowSystem::current(), nullptr);
}

TEST_F(HostLoopTest, DisplayInputReachesTheWindow) {
  system_->process_pending();
  system::InputEvent move;
  move.kind = system::InputKind::mouse_move;
  move.position = {50, 30};
  display_->push(move);
  system_->process_pending();
  POINT point{};
  GetCursorPos(&point);
  EXPECT_EQ(point.x, 50);
  EXPECT_EQ(point.y, 30);
}

TEST_F(HostLoopTest, WindowThatFillsTheScreenFollowsItsSize) {
  MoveWindow(window_, 0, 0, 300, 200, TRUE);
  system_->process_pending();
  display_->resize({400, 250});
  system_->process_pending();
  RECT rect{};
  GetWindowRect(window_, &rect);
  EXPECT_EQ(rect.right, 400);
  EXPECT_EQ(rect.bottom, 250);
  EXPECT_EQ(system::color_of(display_->frame().at(399, 249)) & 0xFFFFFF, RGB(255, 255, 255));
}

// A display that is never smaller than a least size may lose its content all the same.
TEST_F(HostLoopTest, AResizeToTheSameSizeShowsEverythingAgain) {
  system_->process_pending();
  const system::Surface black(300, 200);
  display_->present(black, system::Region(black.rect()));
  display_->resize({300, 200});
  system_->process_pending();
  EXPECT_EQ(system::color_of(display_->frame().at(20, 20)) & 0xFFFFFF, RGB(255, 255, 255));
}

}  // namespace
}  // namespace corvane::conformance
