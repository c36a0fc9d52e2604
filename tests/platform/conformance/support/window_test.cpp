#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {

void WindowTest::SetUp() {
  recorder_ = std::make_unique<MessageRecorder>();
  filter_messages([this](MSG* message) {
    recorder_->dispatching(*message);
    return false;
  });
  move_to(1270, 790);
  recorder_->clear();
}

void WindowTest::TearDown() {
  filter_messages({});
  recorder_->remove_hooks();
  recorder_.reset();
}

void WindowTest::click(int x, int y) {
  press_at(x, y);
  release();
}

HWND WindowTest::settled_popup(const std::string& name, int x, int y, int width, int height,
                               HWND owner) {
  const HWND result = create(
      name, {.parent = owner, .style = WS_POPUP | WS_VISIBLE, .place = {x, y, width, height}});
  EXPECT_NE(result, nullptr);
  settle();
  return result;
}

HWND WindowTest::settled_child(const std::string& name, HWND parent, int x, int y, int width,
                               int height, DWORD extra_style) {
  const HWND result = create(name, {.parent = parent,
                                    .style = WS_CHILD | WS_VISIBLE | extra_style,
                                    .place = {x, y, width, height}});
  EXPECT_NE(result, nullptr);
  settle();
  return result;
}

void WindowTest::settle() {
  pump();
  recorder_->clear();
}

void WindowTest::paint_patches(const std::string& window, std::vector<Patch> patches) {
  recorder_->on(window, WM_PAINT,
                [patches = std::move(patches)](const Message& sent) -> std::optional<LRESULT> {
                  PAINTSTRUCT paint{};
                  const HDC dc = BeginPaint(sent.window, &paint);
                  for (const Patch& patch : patches) fill(dc, patch.rect, patch.color);
                  EndPaint(sent.window, &paint);
                  return 0;
                });
}

RECT update_rect(HWND window) {
  RECT rect{};
  GetUpdateRect(window, &rect, FALSE);
  return rect;
}

}  // namespace corvane::conformance
