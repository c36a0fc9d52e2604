#pragma once
// A desktop for each case, whose windows record their messages.
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tests/platform/conformance/support/message_recorder.h"
#include "tests/support/desktop.h"
#include "tests/support/rects.h"

namespace corvane::conformance {

using test::client_rect;
using test::fill;
using test::text_of;
using test::window_rect;

class WindowTest : public testing::Test, protected test::Desktop {
 protected:
  void SetUp() override;
  void TearDown() override;

  // The platform's bare click: nothing passes after it.
  void click(int x, int y);
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
  std::unique_ptr<MessageRecorder> recorder_;
};

RECT update_rect(HWND window);

}  // namespace corvane::conformance
