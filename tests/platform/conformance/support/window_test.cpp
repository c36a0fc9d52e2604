#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {

void WindowTest::SetUp() {
  recorder_ = std::make_unique<MessageRecorder>();
  filter_messages([this](MSG* message) {
    recorder_->dispatching(*message);
    return false;
  });
  move_to(1270, 790);
  forget();
}

void WindowTest::TearDown() {
  const bool stopped = HasFatalFailure();
  EXPECT_TRUE(stopped || golden_.end());
  filter_messages({});
  recorder_->remove_hooks();
  recorder_.reset();
}

void WindowTest::click(int x, int y) {
  press_at(x, y);
  release();
}

std::string WindowTest::pressed_at(int x, int y) {
  recorder().only({WM_LBUTTONDOWN});
  move_to(x, y);
  recorder().clear();
  press();
  std::string who;
  for (const LogLine& line : recorder().log()) who += line.text.substr(0, line.text.find(' '));
  release();
  return who;
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
  forget();
}

void WindowTest::pump_step(const std::string& name) {
  pump();
  step(name);
}

void WindowTest::forget() {
  recorder_->clear();
  state_ = window_state(recorder_->windows());
}

void WindowTest::expect_step(const std::string& name, const std::string& returned) {
  std::vector<std::string> lines;
  if (!returned.empty()) lines.push_back("= returned " + returned);
  for (const LogLine& line : recorder_->log()) {
    lines.push_back(std::string(static_cast<std::size_t>(2 * line.depth), ' ') + line.text);
  }
  for (const std::string& change : state_changes(state_, window_state(recorder_->windows()))) {
    lines.push_back(change);
  }
  if (lines.empty()) lines.emplace_back("nothing");
  EXPECT_TRUE(golden_.compare(name, lines));
  forget();
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

std::string text_of(POINT point) { return std::to_string(point.x) + "," + std::to_string(point.y); }

}  // namespace corvane::conformance
