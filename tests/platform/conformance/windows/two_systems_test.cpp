// Two window systems in one thread, and messages posted from another thread.
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <thread>
#include <vector>

#include "tests/support/own_system.h"

namespace corvane::conformance {
namespace {

std::vector<UINT>* messages_of(HWND window) {
  return reinterpret_cast<std::vector<UINT>*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

LRESULT CALLBACK collect(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (std::vector<UINT>* messages = messages_of(window)) messages->push_back(message);
  return DefWindowProcW(window, message, wparam, lparam);
}

// A desktop with one visible window that collects its messages.
class Desk : public test::Desktop {
 public:
  Desk() : Desktop({200, 100}) {
    WNDCLASSW window_class{};
    window_class.lpfnWndProc = &collect;
    window_class.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    window_class.lpszClassName = L"Desk";
    EXPECT_NE(RegisterClassW(&window_class), 0);
    window_ = CreateWindowExW(0, L"Desk", L"", WS_POPUP | WS_VISIBLE, 0, 0, 100, 50, nullptr,
                              nullptr, nullptr, nullptr);
    EXPECT_NE(window_, nullptr);
    pump();
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&messages_));
  }
  ~Desk() { SetWindowLongPtrW(window_, GWLP_USERDATA, 0); }

  int count(UINT message) const {
    return static_cast<int>(std::count(messages_.begin(), messages_.end(), message));
  }
  std::vector<UINT> messages(UINT first, UINT last) const {
    std::vector<UINT> found;
    std::copy_if(messages_.begin(), messages_.end(), std::back_inserter(found),
                 [=](UINT message) { return message >= first && message <= last; });
    return found;
  }
  void make_current() { own().windows.make_current(); }
  HWND window() const { return window_; }

 private:
  std::vector<UINT> messages_;
  HWND window_ = nullptr;
};

// The error of posting there, or 0.
DWORD posted_by_another_thread(HWND window) {
  DWORD error = 0;
  std::thread([&] {
    SetLastError(0);
    error = PostMessageW(window, WM_USER, 0, 0) != 0 ? 0 : GetLastError();
  }).join();
  return error;
}

TEST(TwoSystemsTest, TheLatestIsCurrentAndItsEndRestoresTheFormer) {
  EXPECT_EQ(system::WindowSystem::current(), nullptr);
  Desk first;
  EXPECT_EQ(system::WindowSystem::current(), &first.own().windows);
  HWND window = nullptr;
  {
    Desk second;
    window = second.window();
    EXPECT_EQ(system::WindowSystem::current(), &second.own().windows);
  }
  EXPECT_EQ(IsWindow(window), 0);
  EXPECT_EQ(posted_by_another_thread(window), 1400U);
  EXPECT_EQ(system::WindowSystem::current(), &first.own().windows);
  EXPECT_NE(IsWindow(first.window()), 0);
  DestroyWindow(first.window());
  EXPECT_EQ(posted_by_another_thread(first.window()), 1400U);
}

TEST(TwoSystemsTest, TheEndOfOneThatIsNotCurrentDestroysItsWindows) {
  static int destroyed;
  destroyed = 0;
  Desk first;
  auto second = std::make_unique<test::Desktop>();
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = [](HWND window, UINT message, WPARAM w, LPARAM l) -> LRESULT {
    if (message == WM_DESTROY) ++destroyed;
    return DefWindowProcW(window, message, w, l);
  };
  window_class.lpszClassName = L"Counted";
  EXPECT_NE(RegisterClassW(&window_class), 0);
  CreateWindowExW(0, L"Counted", L"", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr);
  first.make_current();
  second.reset();
  EXPECT_EQ(destroyed, 1);
  EXPECT_EQ(system::WindowSystem::current(), &first.own().windows);
}

TEST(TwoSystemsTest, EachHasItsOwnFocusCaptureAndPointer) {
  Desk first;
  SetCapture(first.window());
  SetCursorPos(11, 12);
  Desk second;
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(GetFocus(), second.window());
  SetCursorPos(21, 22);
  first.make_current();
  EXPECT_EQ(GetCapture(), first.window());
  EXPECT_EQ(GetFocus(), first.window());
  POINT point{};
  GetCursorPos(&point);
  EXPECT_EQ(point.x, 11);
  second.make_current();
}

TEST(TwoSystemsTest, EachHasItsOwnQueueTimersAndClock) {
  Desk first;
  PostMessageW(first.window(), WM_USER, 0, 0);
  SetTimer(first.window(), 1, 50, nullptr);
  Desk second;
  SetTimer(second.window(), 1, 50, nullptr);
  second.advance(60);
  second.pump();
  EXPECT_EQ(first.count(WM_USER), 0);
  EXPECT_EQ(second.count(WM_USER), 0);
  EXPECT_EQ(second.count(WM_TIMER), 1);
  first.make_current();
  first.pump();
  EXPECT_EQ(first.count(WM_USER), 1);
  EXPECT_EQ(first.count(WM_TIMER), 0);
  second.make_current();
}

TEST(TwoSystemsTest, ClassesOfOneAreUnknownToTheOther) {
  Desk first;
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = &DefWindowProcW;
  window_class.lpszClassName = L"OnlyHere";
  EXPECT_NE(RegisterClassW(&window_class), 0);
  const test::Desktop second;
  EXPECT_EQ(CreateWindowExW(0, L"OnlyHere", L"", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr,
                            nullptr),
            nullptr);
}

TEST(TwoSystemsTest, WithoutASystemEveryCallFailsSoftly) {
  ASSERT_EQ(system::WindowSystem::current(), nullptr);
  const HWND made_up = reinterpret_cast<HWND>(UINT_PTR{0x10001});
  MSG message{};
  EXPECT_EQ(
      CreateWindowExW(0, L"Desk", L"", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr),
      nullptr);
  EXPECT_EQ(IsWindow(made_up), 0);
  EXPECT_EQ(ShowWindow(made_up, SW_SHOW), 0);
  EXPECT_EQ(DestroyWindow(made_up), 0);
  EXPECT_EQ(GetFocus(), nullptr);
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(GetActiveWindow(), nullptr);
  EXPECT_EQ(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE), 0);
  EXPECT_EQ(SendMessageW(made_up, WM_USER, 0, 0), 0);
  EXPECT_EQ(PostMessageW(made_up, WM_USER, 0, 0), 0);
  EXPECT_EQ(SetTimer(made_up, 1, 10, nullptr), 0U);
  EXPECT_EQ(InvalidateRect(made_up, nullptr, TRUE), 0);
}

TEST(PostFromThreadTest, ManyThreadsWhileTheQueueIsRead) {
  Desk desk;
  std::vector<std::thread> posters;
  for (UINT poster = 0; poster < 4; ++poster) {
    posters.emplace_back([&desk, poster] {
      for (UINT times = 0; times < 500; ++times) {
        PostMessageW(desk.window(), WM_APP + 500 * poster + times, 0, 0);
      }
    });
  }
  for (int turns = 0; turns < 50; ++turns) desk.pump();
  for (std::thread& poster : posters) poster.join();
  desk.pump();
  // Each once, and those of one poster in their order.
  for (UINT poster = 0; poster < 4; ++poster) {
    const UINT first = WM_APP + 500 * poster;
    std::vector<UINT> wanted(500);
    std::iota(wanted.begin(), wanted.end(), first);
    EXPECT_EQ(desk.messages(first, first + 499), wanted);
  }
}

TEST(PostFromThreadTest, FindsTheWindowsOwnSystem) {
  Desk first;
  Desk second;
  ASSERT_NE(first.window(), second.window());
  std::thread([&] {
    PostMessageW(first.window(), WM_USER + 1, 0, 0);
    PostMessageW(second.window(), WM_USER + 2, 0, 0);
  }).join();
  second.pump();
  first.make_current();
  first.pump();
  second.make_current();
  EXPECT_EQ(first.count(WM_USER + 1), 1);
  EXPECT_EQ(first.count(WM_USER + 2), 0);
  EXPECT_EQ(second.count(WM_USER + 1), 0);
  EXPECT_EQ(second.count(WM_USER + 2), 1);
}

}  // namespace
}  // namespace corvane::conformance
