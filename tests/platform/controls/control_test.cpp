#include "tests/platform/controls/control_test.h"

#include "corvane/platform/base_services/installation.h"
#include "tests/support/bitmap_file.h"

namespace corvane::test {
const MessageMap* ControlHost::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(On<WM_LBUTTONDOWN>(&ControlHost::OnLButtonDown),
                                                 On<WM_ERASEBKGND>(&ControlHost::OnEraseBkgnd),
                                                 On<WM_PAINT>(&ControlHost::OnPaint));
  static const MessageMap map = kMessages.extending(CWnd::GetMessageMap());
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
  folder_.file("image/" + name, bitmap_file({width, height}, color));
}

}  // namespace corvane::test
