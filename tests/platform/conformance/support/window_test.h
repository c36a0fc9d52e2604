#pragma once
// A desktop for each case, whose windows record their messages.
#include <gtest/gtest.h>

#include <concepts>
#include <string>
#include <vector>

#include "tests/platform/conformance/support/message_recorder.h"
#include "tests/platform/conformance/support/window_state.h"
#include "tests/support/desktop.h"
#include "tests/support/rects.h"

namespace corvane::conformance {

using test::client_rect;
using test::fill;
using test::text_of;
using test::window_rect;

inline constexpr COLORREF kWhite = RGB(255, 255, 255);
inline constexpr COLORREF kBlack = RGB(0, 0, 0);
inline constexpr COLORREF kRed = RGB(255, 0, 0);
inline constexpr COLORREF kGreen = RGB(0, 255, 0);
inline constexpr COLORREF kBlue = RGB(0, 0, 255);

class WindowTest : public testing::Test, protected test::Desktop {
 protected:
  WindowTest();
  void TearDown() override;

  // The platform's bare click: nothing passes after it.
  void click(int x, int y);
  // Who gets a press there: a window's name, or nothing. From here on only presses are recorded.
  std::string pressed_at(int x, int y);
  HWND create(const std::string& name, const WindowPlan& plan) {
    return recorder().create(name, plan);
  }
  // A visible pop-up, painted, the log empty.
  HWND settled_popup(const std::string& name, int x, int y, int width, int height,
                     HWND owner = nullptr);
  // A visible child, painted, the log empty.
  HWND settled_child(const std::string& name, HWND parent, int x, int y, int width, int height,
                     DWORD extra_style = 0);
  void settle();  // pumps, then forgets

  MessageRecorder& recorder() { return recorder_; }
  HWND window(const std::string& name) const { return recorder_.window(name); }
  std::string name_of(HWND window) const { return recorder_.name_of(window); }

  // What happened since the last step, or since forget(), is as the golden file says: what was
  // returned, the messages, and what is different now. Then it is forgotten.
  void step(const std::string& name = {}) { expect_step(name, {}); }
  void step(const std::string& name, HWND returned) { expect_step(name, name_of(returned)); }
  void step(const std::string& name, const std::string& seen) { expect_step(name, seen); }
  template <std::integral Number>
  void step(const std::string& name, Number returned) {
    expect_step(name, std::to_string(returned));
  }
  void pump_step(const std::string& name);  // of what the queue brings too
  // A step for what was sent, and another for what the queue brings.
  template <typename... Returned>
  void now_and_later(const std::string& name, const Returned&... returned) {
    step(name, returned...);
    pump_step(name + ", later");
  }
  void forget();

  // Makes `window` draw these filled rectangles over its background in WM_PAINT.
  struct Patch {
    RECT rect;
    COLORREF color;
  };
  void paint_patches(const std::string& window, std::vector<Patch> patches);
  // Outside of a WM_PAINT.
  static void draw(HWND window, const RECT& rect, COLORREF color);

 private:
  void expect_step(const std::string& name, const std::string& returned);

  MessageRecorder recorder_;
  WindowState state_;   // at the last step
  std::string golden_;  // all steps
};

RECT update_rect(HWND window);

}  // namespace corvane::conformance
