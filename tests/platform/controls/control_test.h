#pragma once
// A window system in memory with a host window for controls, driven by input.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

#include "corvane/platform/framework/framework.h"
#include "corvane/platform/system/display/headless_display.h"
#include "corvane/platform/system/user/window_system.h"
#include "tests/support/temporary_folder.h"

namespace corvane::test {

// Records what its controls send it; a command runs `on_command` (once) before it is recorded.
class ControlHost : public CWnd {
 public:
  struct Command {
    WPARAM wparam;
    HWND sender;
    HWND focus;
    HWND capture;
  };
  std::vector<Command> commands;
  std::vector<CPoint> presses;  // WM_LBUTTONDOWN, client coordinates
  std::function<void()> on_command;

 protected:
  const MessageMap* GetMessageMap() const override;
  BOOL OnCommand(WPARAM wparam, LPARAM lparam) override;
  void OnLButtonDown(UINT flags, CPoint point);
  BOOL OnEraseBkgnd(CDC* dc);
  void OnPaint();
};

class ControlTest : public testing::Test {
 protected:
  static constexpr COLORREF kHostColor = RGB(200, 180, 160);

  ControlTest();
  ~ControlTest() override;

  void pump();
  void advance(std::uint64_t milliseconds);
  void move_to(int x, int y);  // screen coordinates, as the host's client coordinates
  void press(int x, int y);
  void release(int x, int y);
  void click(int x, int y);
  void key_down(int key);
  void key_up(int key);
  COLORREF pixel(int x, int y);

  // A picture of one colour in the skin's image folder.
  void write_picture(const std::string& name, int width, int height, COLORREF color);
  // The number of pixels in the rectangle of the screen that are not of that colour, and the
  // smallest rectangle around them.
  int count_other_than(const CRect& rect, COLORREF color, CRect* bounds = nullptr);

  TemporaryFolder folder_;
  system::HeadlessDisplay* display_;
  std::unique_ptr<system::WindowSystem> windows_;
  std::unique_ptr<CWinApp> app_;
  std::unique_ptr<ControlHost> host_;
};

}  // namespace corvane::test
