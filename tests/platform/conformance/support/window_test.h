#pragma once
// One window system per case, driven by input and by a clock that moves when told.
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tests/platform/conformance/support/message_recorder.h"

namespace corvane::conformance {

class WindowTest : public testing::Test {
 protected:
  WindowTest();
  ~WindowTest() override;
  void SetUp() override;
  void TearDown() override;

  // Retrieves, translates and dispatches until the queue is empty.
  void pump();
  void advance(unsigned milliseconds);
  // What the screen shows; composes first.
  COLORREF screen_pixel(int x, int y);

  void move_to(int x, int y);  // and pumps
  void press(DWORD flag = MOUSEEVENTF_LEFTDOWN);
  void release(DWORD flag = MOUSEEVENTF_LEFTUP);
  void click(int x, int y);
  void press_at(int x, int y);
  void wheel(int delta);
  void key_down(int virtual_key);
  void key_up(int virtual_key);
  static void send_mouse(DWORD flags, int data = 0);
  static void send_key(int virtual_key, bool down);

  HWND create(const std::string& name, const WindowPlan& plan) {
    return recorder().create(name, plan);
  }
  // A visible pop-up, painted, the log empty.
  HWND settled_popup(const std::string& name, int x, int y, int width, int height,
                     HWND owner = nullptr);
  // A visible child, painted, the log empty.
  HWND settled_child(const std::string& name, HWND parent, int x, int y, int width, int height,
                     DWORD extra_style = 0);
  void settle();  // pumps, then forgets what was recorded

  MessageRecorder& recorder() { return *recorder_; }
  HWND window(const std::string& name) const { return recorder_->window(name); }
  std::string name_of(HWND window) const { return recorder_->name_of(window); }
  testing::AssertionResult log_is(std::string_view expected, Nesting nesting = Nesting::compared) {
    return recorder_->matches(expected, nesting);
  }
  // Makes `window` draw these filled rectangles over its background in WM_PAINT.
  struct Patch {
    RECT rect;
    COLORREF color;
  };
  void paint_patches(const std::string& window, std::vector<Patch> patches);

 private:
  struct System;
  std::unique_ptr<System> system_;
  std::unique_ptr<MessageRecorder> recorder_;
};

RECT window_rect(HWND window);
RECT client_rect(HWND window);
RECT update_rect(HWND window);
std::string text_of(const RECT& rect);
void fill(HDC dc, const RECT& rect, COLORREF color);

}  // namespace corvane::conformance
