#include "tests/platform/conformance/support/window_test.h"

#include "corvane/platform/system/display/headless_display.h"
#include "corvane/platform/system/user/window_system.h"
#include "tests/platform/conformance/support/message_names.h"

namespace corvane::conformance {

struct WindowTest::System {
  explicit System(std::unique_ptr<system::HeadlessDisplay> screen)
      : display(*screen), windows(std::move(screen)) {}
  system::HeadlessDisplay& display;
  system::WindowSystem windows;
};

WindowTest::WindowTest() = default;
WindowTest::~WindowTest() = default;

void WindowTest::SetUp() {
  system_ = std::make_unique<System>(std::make_unique<system::HeadlessDisplay>(SIZE{1280, 800}));
  recorder_ = std::make_unique<MessageRecorder>();
  move_to(1270, 790);
  recorder_->clear();
}

void WindowTest::TearDown() {
  recorder_->remove_hooks();
  recorder_.reset();
  system_.reset();
}

void WindowTest::pump() {
  MSG message{};
  int left = 2000;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    if (message.message == WM_QUIT) return;
    if (--left == 0) {
      ADD_FAILURE() << "the queue never becomes empty";
      return;
    }
    TranslateMessage(&message);
    recorder_->dispatching(message);
    DispatchMessageW(&message);
  }
}

void WindowTest::advance(unsigned milliseconds) { system_->display.advance(milliseconds); }

COLORREF WindowTest::screen_pixel(int x, int y) {
  const system::Surface& frame = system_->windows.frame();
  return system::color_of(frame.at(x, y)) & 0xFFFFFF;
}

void WindowTest::send_mouse(DWORD flags, int data) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  input.mi.mouseData = static_cast<DWORD>(data);
  EXPECT_EQ(SendInput(1, &input, sizeof(input)), 1U);
}

void WindowTest::send_key(int virtual_key, bool down) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(virtual_key);
  input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
  EXPECT_EQ(SendInput(1, &input, sizeof(input)), 1U);
}

void WindowTest::move_to(int x, int y) {
  SetCursorPos(x, y);
  pump();
}

void WindowTest::press(DWORD flag) {
  send_mouse(flag);
  pump();
}

void WindowTest::release(DWORD flag) {
  send_mouse(flag);
  pump();
}

void WindowTest::press_at(int x, int y) {
  move_to(x, y);
  press();
}

void WindowTest::click(int x, int y) {
  press_at(x, y);
  release();
}

void WindowTest::wheel(int delta) {
  send_mouse(MOUSEEVENTF_WHEEL, delta);
  pump();
}

void WindowTest::key_down(int virtual_key) {
  send_key(virtual_key, true);
  pump();
}

void WindowTest::key_up(int virtual_key) {
  send_key(virtual_key, false);
  pump();
}

HWND WindowTest::settled_popup(const std::string& name, int x, int y, int width, int height,
                               HWND owner) {
  const HWND result = create(name, {.parent = owner,
                                    .style = WS_POPUP | WS_VISIBLE,
                                    .x = x,
                                    .y = y,
                                    .width = width,
                                    .height = height});
  EXPECT_NE(result, nullptr);
  settle();
  return result;
}

HWND WindowTest::settled_child(const std::string& name, HWND parent, int x, int y, int width,
                               int height, DWORD extra_style) {
  const HWND result = create(name, {.parent = parent,
                                    .style = WS_CHILD | WS_VISIBLE | extra_style,
                                    .x = x,
                                    .y = y,
                                    .width = width,
                                    .height = height});
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

RECT window_rect(HWND window) {
  RECT rect{};
  EXPECT_NE(GetWindowRect(window, &rect), 0);
  return rect;
}

RECT client_rect(HWND window) {
  RECT rect{};
  EXPECT_NE(GetClientRect(window, &rect), 0);
  return rect;
}

RECT update_rect(HWND window) {
  RECT rect{};
  GetUpdateRect(window, &rect, FALSE);
  return rect;
}

std::string text_of(const RECT& rect) { return rectangle_text(rect); }

void fill(HDC dc, const RECT& rect, COLORREF color) {
  const HBRUSH brush = CreateSolidBrush(color);
  FillRect(dc, &rect, brush);
  DeleteObject(brush);
}

}  // namespace corvane::conformance
