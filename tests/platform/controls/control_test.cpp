#include "tests/platform/controls/control_test.h"

#include "corvane/platform/base_services/installation.h"
#include "corvane/platform/drawing/gdi_dc.h"
#include "tests/support/bitmap_file.h"

namespace corvane::test {

BOOL ControlHost::OnCommand(WPARAM wparam, LPARAM lparam) {
  commands.push_back({wparam, reinterpret_cast<HWND>(lparam), ::GetFocus(), ::GetCapture()});
  if (const auto action = std::exchange(on_command, nullptr)) action();
  return TRUE;
}

LRESULT ControlHost::WindowProc(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_LBUTTONDOWN) presses.emplace_back(LOWORD(lparam), HIWORD(lparam));
  return CWnd::WindowProc(message, wparam, lparam);
}

ControlTest::ControlTest() : Desktop({400, 300}) {
  SetSkinFolder(folder_.wide());
  const CString host_class = AfxRegisterWndClass(0, nullptr, ::CreateSolidBrush(kHostColor));
  EXPECT_TRUE(host_->CreateEx(0, host_class, L"host", WS_POPUP | WS_VISIBLE, CRect(0, 0, 400, 300),
                              nullptr, 0));
  pump();
}

ControlTest::~ControlTest() { SetSkinFolder(L""); }

void ControlTest::write_picture(const std::string& name, int width, int height, COLORREF color) {
  folder_.file("image/" + name, bitmap_file({width, height}, color));
}

void ControlTest::expect_shown(const CRect& place, const Shown& shown) {
  CRect around(place);
  around.InflateRect(2, 2);
  CRect inner(place);
  if (shown.edge) inner.DeflateRect(1, 1);
  CBufferDC expected;
  ASSERT_TRUE(expected.CreateBufferDC(nullptr, CRect(0, 0, 400, 300)));
  expected.SetBackColor(around, kHostColor);
  expected.SetBackColor(place, shown.edge.value_or(shown.face));
  expected.SetBackColor(inner, shown.face);
  const Gdiplus::Color text(255, GetRValue(shown.text), GetGValue(shown.text),
                            GetBValue(shown.text));
  CGdiDC().DrawTextW(expected, shown.caption, &shown.font, shown.box, text.GetValue(),
                     DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  pump();
  const Frame seen = frame();
  for (int y = around.top; y < around.bottom; ++y) {
    for (int x = around.left; x < around.right; ++x) {
      ASSERT_EQ(seen.at(x, y), ::GetPixel(expected, x, y)) << x << ", " << y;
    }
  }
}

}  // namespace corvane::test
