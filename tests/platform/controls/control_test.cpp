#include "tests/platform/controls/control_test.h"

#include <array>

#include "corvane/platform/base_services/installation.h"

namespace corvane::test {
namespace {

void send_mouse(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  ::SendInput(1, &input, sizeof(input));
}

void send_key(int key, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(key);
  input.ki.dwFlags = flags;
  ::SendInput(1, &input, sizeof(input));
}

void append_number(std::string& bytes, std::uint32_t number, int length) {
  for (int i = 0; i < length; ++i) bytes.push_back(static_cast<char>(number >> (8 * i)));
}

// A bitmap file of one colour, 24 bits a pixel.
std::string bitmap_file(int width, int height, COLORREF color) {
  const int row = (width * 3 + 3) / 4 * 4;
  std::string bytes = "BM";
  append_number(bytes, static_cast<std::uint32_t>(54 + row * height), 4);
  append_number(bytes, 0, 4);
  append_number(bytes, 54, 4);
  append_number(bytes, 40, 4);
  append_number(bytes, static_cast<std::uint32_t>(width), 4);
  append_number(bytes, static_cast<std::uint32_t>(height), 4);
  append_number(bytes, 1, 2);
  append_number(bytes, 24, 2);
  bytes.append(24, '\0');
  for (int y = 0; y < height; ++y) {
    std::string line;
    for (int x = 0; x < width; ++x) {
      for (const int channel : {GetBValue(color), GetGValue(color), GetRValue(color)}) {
        line.push_back(static_cast<char>(channel));
      }
    }
    line.resize(static_cast<std::size_t>(row));
    bytes += line;
  }
  return bytes;
}

}  // namespace

const MessageMap* ControlHost::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(On<WM_LBUTTONDOWN>(&ControlHost::OnLButtonDown),
                                                 On<WM_ERASEBKGND>(&ControlHost::OnEraseBkgnd),
                                                 On<WM_PAINT>(&ControlHost::OnPaint));
  static const MessageMap map = kMessages.Extending(CWnd::GetMessageMap());
  return &map;
}

BOOL ControlHost::OnCommand(WPARAM wparam, LPARAM lparam) {
  commands.push_back({wparam, reinterpret_cast<HWND>(lparam), ::GetFocus(), ::GetCapture()});
  if (const auto action = std::exchange(on_command, nullptr)) action();
  return TRUE;
}

void ControlHost::OnLButtonDown(UINT, CPoint point) { presses.push_back(point); }

BOOL ControlHost::OnEraseBkgnd(CDC*) { return TRUE; }

void ControlHost::OnPaint() {
  CPaintDC dc(this);
  CRect client;
  GetClientRect(client);
  dc.FillSolidRect(client, RGB(200, 180, 160));
}

ControlTest::ControlTest() {
  auto display = std::make_unique<system::HeadlessDisplay>(SIZE{400, 300});
  display_ = display.get();
  windows_ = std::make_unique<system::WindowSystem>(std::move(display));
  app_ = std::make_unique<CWinApp>();
  host_ = std::make_unique<ControlHost>();
  SetSkinFolder(folder_.wide());
  EXPECT_TRUE(host_->CreateEx(0, nullptr, L"host", WS_POPUP | WS_VISIBLE, CRect(0, 0, 400, 300),
                              nullptr, 0));
  pump();
}

ControlTest::~ControlTest() {
  SetSkinFolder(L"");
  host_.reset();
}

void ControlTest::pump() {
  MSG message{};
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

void ControlTest::advance(std::uint64_t milliseconds) { display_->advance(milliseconds); }

void ControlTest::move_to(int x, int y) {
  ::SetCursorPos(x, y);
  pump();
}

void ControlTest::press(int x, int y) {
  move_to(x, y);
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  pump();
}

void ControlTest::release(int x, int y) {
  move_to(x, y);
  send_mouse(MOUSEEVENTF_LEFTUP);
  pump();
}

void ControlTest::click(int x, int y) {
  press(x, y);
  release(x, y);
}

void ControlTest::key_down(int key) {
  send_key(key, 0);
  pump();
}

void ControlTest::key_up(int key) {
  send_key(key, KEYEVENTF_KEYUP);
  pump();
}

COLORREF ControlTest::pixel(int x, int y) {
  return system::color_of(windows_->frame().at(x, y)) & 0xFFFFFF;
}

void ControlTest::write_picture(const std::string& name, int width, int height, COLORREF color) {
  folder_.file("image/" + name, bitmap_file(width, height, color));
}

int ControlTest::count_other_than(const CRect& rect, COLORREF color, CRect* bounds) {
  int count = 0;
  CRect around;
  for (int y = rect.top; y < rect.bottom; ++y) {
    for (int x = rect.left; x < rect.right; ++x) {
      if (pixel(x, y) == color) continue;
      ++count;
      around |= CRect(x, y, x + 1, y + 1);
    }
  }
  if (bounds) *bounds = around;
  return count;
}

}  // namespace corvane::test
