// Threads that post to a window system while it runs, and window systems in threads of their own.
// ThreadSanitizer watches it under the preset tsan.
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>
#include <vector>

#include "tests/support/desktop.h"

namespace corvane {
namespace {

// Paints text, and counts in its user data what it was posted.
LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_USER) {
    SetWindowLongPtrW(window, GWLP_USERDATA, GetWindowLongPtrW(window, GWLP_USERDATA) + 1);
    InvalidateRect(window, nullptr, TRUE);
  } else if (message == WM_PAINT) {
    PAINTSTRUCT paint{};
    TextOutW(BeginPaint(window, &paint), 0, 0, L"text", 4);
    EndPaint(window, &paint);
    return 0;
  }
  return DefWindowProcW(window, message, wparam, lparam);
}

HWND create_window() {
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = &procedure;
  window_class.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
  window_class.lpszClassName = L"Threads";
  RegisterClassW(&window_class);
  return CreateWindowExW(0, L"Threads", L"", WS_POPUP | WS_VISIBLE, 0, 0, 40, 20, nullptr, nullptr,
                         nullptr, nullptr);
}

LONG_PTR posted_to(HWND window) { return GetWindowLongPtrW(window, GWLP_USERDATA); }

// A full queue is no reason to lose one.
void post_each(HWND window, int count) {
  for (int i = 0; i < count; ++i) {
    while (PostMessageW(window, WM_USER, 0, 0) == 0) std::this_thread::yield();
  }
}

TEST(Threads, EightPostToOneSystemWhileItRuns) {
  constexpr int kThreads = 8;
  constexpr int kPosts = 2000;
  test::Desktop desktop({200, 100});
  const HWND window = create_window();
  std::vector<std::thread> posters;
  for (int i = 0; i < kThreads; ++i) posters.emplace_back(post_each, window, kPosts);
  while (posted_to(window) < kThreads * kPosts) {
    ASSERT_TRUE(desktop.wait_for_post(10000));
    for (int turns = 0; turns < 100; ++turns) {
      MSG message{};
      if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) DispatchMessageW(&message);
    }
  }
  for (std::thread& poster : posters) poster.join();
  EXPECT_EQ(posted_to(window), kThreads * kPosts) << "each came once";
}

TEST(Threads, FourSystemsRunInFourThreadsAndPostToEachOther) {
  constexpr std::size_t kSystems = 4;
  constexpr int kRounds = 20;
  constexpr int kPosts = 10;
  std::array<std::atomic<HWND>, kSystems> windows{};
  std::atomic<int> started = 0;
  std::vector<std::thread> threads;
  for (std::size_t own = 0; own < kSystems; ++own) {
    threads.emplace_back([&, own] {
      test::Desktop desktop({200, 100});
      windows[own] = create_window();
      for (++started; started < static_cast<int>(kSystems);) std::this_thread::yield();
      for (int round = 0; round < kRounds; ++round) {
        post_each(windows[(own + 1) % kSystems], kPosts);
        const HWND passing = create_window();
        SetTimer(passing, 1, 10, nullptr);
        desktop.click(5, 5);
        desktop.advance(20);
        desktop.frame();
        DestroyWindow(passing);
      }
      while (posted_to(windows[own]) < kRounds * kPosts) desktop.pump();
      for (--started; started > 0;) std::this_thread::yield();
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
}  // namespace corvane
