#include "tests/platform/conformance/support/window_test.h"

#include "tests/platform/conformance/support/golden.h"

namespace corvane::conformance {

WindowTest::WindowTest() {
  filter_messages([this](MSG* message) {
    recorder_.dispatching(*message);
    return false;
  });
  move_to(1270, 790);
  forget();
}

void WindowTest::TearDown() {
  expect_golden(HasFatalFailure() ? std::nullopt : std::optional(golden_));
  recorder_.remove_hooks();
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
  for (const LogLine& line : recorder().log()) who += line.window;
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
  recorder_.clear();
  state_ = window_state(recorder_);
}

void WindowTest::expect_step(const std::string& name, const std::string& returned) {
  std::vector<std::string> lines;
  if (!returned.empty()) lines.push_back("= returned " + returned);
  for (const LogLine& line : recorder_.log()) lines.push_back(line.text);
  for (const std::string& change : state_changes(state_, window_state(recorder_))) {
    lines.push_back(change);
  }
  if (lines.empty()) lines.emplace_back("nothing");
  if (!name.empty()) golden_ += "  - " + name + "\n";
  for (const std::string& line : lines) golden_ += "      " + line + "\n";
  forget();
}

void WindowTest::paint_patches(const std::string& window, std::vector<Patch> patches) {
  recorder_.on_paint(window, [patches = std::move(patches)](const PAINTSTRUCT& paint) {
    for (const auto& [rect, color] : patches) fill(paint.hdc, rect, color);
  });
}

void WindowTest::draw(HWND window, const RECT& rect, COLORREF color) {
  const HDC dc = GetDC(window);
  fill(dc, rect, color);
  EXPECT_EQ(ReleaseDC(window, dc), 1);
}

RECT update_rect(HWND window) {
  RECT rect{};
  GetUpdateRect(window, &rect, FALSE);
  return rect;
}

}  // namespace corvane::conformance
