#pragma once
#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "corvane/platform/framework/framework.h"
#include "tests/support/desktop.h"

namespace corvane {

// A window that hands every message to a function before it handles it.
class WatchedWnd : public CWnd {
 public:
  using Watch = std::function<void(UINT, WPARAM, LPARAM)>;

  explicit WatchedWnd(Watch watch = {}) : watch_(std::move(watch)) {}

  bool create(HWND parent = nullptr, DWORD style = WS_POPUP | WS_VISIBLE,
              CRect place = CRect(100, 100, 300, 250)) {
    return CreateEx(0, nullptr, L"watched", style, place.left, place.top, place.Width(),
                    place.Height(), parent, nullptr);
  }

  int ends = 0;  // calls of PostNcDestroy
  // Messages that do not reach the base, one answered so that a creation fails, one with an
  // exception.
  UINT refuses = WM_NULL, throws = WM_NULL;

 protected:
  LRESULT WindowProc(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (watch_) watch_(message, wparam, lparam);
    if (refuses != WM_NULL && message == refuses) return message == WM_CREATE ? -1 : 0;
    if (throws != WM_NULL && message == throws) throw std::runtime_error("no path");
    return CWnd::WindowProc(message, wparam, lparam);
  }
  void PostNcDestroy() override { ++ends; }

 private:
  Watch watch_;
};

// A desktop with a window.
class WatchedWndTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(window_.create()); }

  test::Desktop desktop_;
  WatchedWnd window_;
};

}  // namespace corvane
