#pragma once
// One window system in memory per case, with a skin and a host window, driven by input.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "corvane/platform/framework/framework.h"
#include "corvane/platform/system/display/headless_display.h"
#include "corvane/platform/system/user/window_system.h"
#include "tests/layers/support/host_window.h"
#include "tests/layers/support/rect_matchers.h"
#include "tests/layers/support/test_skin.h"

namespace corvane_tests {

// A window system and its application object, with what a user can do to them.
class Desktop {
 public:
  explicit Desktop(SIZE size = {800, 600});

  // Takes out, filters and dispatches messages as the application's loop does until none is left.
  void pump();
  // Mouse and keyboard; screen coordinates. Each pumps.
  void move_to(int x, int y);
  void press(int x, int y);
  void release();
  void queue_release();  // does not pump
  void click(int x, int y);
  void double_click(int x, int y);
  void wheel(int x, int y, int distance);  // positive: away from the user
  // Presses, moves in steps and releases.
  void drag(POINT from, POINT to);
  void key(int virtual_key);  // down and up

  COLORREF pixel(int x, int y);
  corvane::system::CursorShape cursor() const { return display_.cursor(); }
  corvane::system::WindowSystem& windows() { return windows_; }
  corvane::CWinApp& app() { return app_; }

 private:
  explicit Desktop(std::unique_ptr<corvane::system::HeadlessDisplay> display);
  static void send_button(DWORD flags, int distance = 0);

  corvane::system::HeadlessDisplay& display_;
  corvane::system::WindowSystem windows_;
  corvane::CWinApp app_;
};

class LayerTest : public testing::Test {
 protected:
  static constexpr RECT host_place = {40, 30, 740, 530};

  void SetUp() override;

  TestSkin skin_;
  Desktop desktop_;
  HostWindow host_;
};

RECT window_rect(HWND window);
RECT client_rect(HWND window);

}  // namespace corvane_tests
