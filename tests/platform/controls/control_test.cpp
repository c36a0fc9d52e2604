#include "tests/platform/controls/control_test.h"

#include "corvane/platform/base_services/installation.h"

namespace corvane::test {
namespace {

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

ControlTest::ControlTest() : Desktop({400, 300}) {
  SetSkinFolder(folder_.wide());
  EXPECT_TRUE(host_->CreateEx(0, nullptr, L"host", WS_POPUP | WS_VISIBLE, CRect(0, 0, 400, 300),
                              nullptr, 0));
  pump();
}

ControlTest::~ControlTest() { SetSkinFolder(L""); }

void ControlTest::write_picture(const std::string& name, int width, int height, COLORREF color) {
  folder_.file("image/" + name, bitmap_file(width, height, color));
}

}  // namespace corvane::test
