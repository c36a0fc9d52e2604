#pragma once
#include <functional>

#include "corvane/platform/framework/framework.h"

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

 protected:
  LRESULT WindowProc(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (watch_) watch_(message, wparam, lparam);
    return CWnd::WindowProc(message, wparam, lparam);
  }
  void PostNcDestroy() override { ++ends; }

 private:
  Watch watch_;
};

}  // namespace corvane
