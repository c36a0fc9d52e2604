#include "tests/support/host_window.h"

#include <algorithm>
#include <iterator>

namespace corvane::test {
namespace {

constexpr int square = 16;

}  // namespace

COLORREF picture_color(int x, int y) {
  const int column = x / square, row = y / square;
  return RGB((column * 37) % 256, (row * 53 + 20) % 256, (column * row * 11 + 90) % 256);
}

bool HostWindow::open(const RECT& place) {
  CreateEx(0, corvane::AfxRegisterWndClass(CS_DBLCLKS), L"host", WS_POPUP, place, nullptr, 0);
  ShowWindow(SW_SHOW);
  return GetSafeHwnd() != nullptr;
}

std::vector<HostWindow::Received> HostWindow::of(UINT message) const {
  std::vector<Received> found;
  std::copy_if(received_.begin(), received_.end(), std::back_inserter(found),
               [message](const Received& each) { return each.message == message; });
  return found;
}

LRESULT HostWindow::WindowProc(UINT message, WPARAM wparam, LPARAM lparam) {
  received_.push_back({message, wparam, lparam});
  if (on_message) on_message(message, wparam);
  if (message == WM_ERASEBKGND) return 1;
  if (message != WM_PAINT) return corvane::CWnd::WindowProc(message, wparam, lparam);
  paint();
  return 0;
}

void HostWindow::paint() {
  corvane::CPaintDC dc(this);
  corvane::CRect client;
  GetClientRect(client);
  for (int y = 0; y < client.bottom; y += square) {
    for (int x = 0; x < client.right; x += square) {
      const corvane::CBrush brush(picture_color(x, y));
      const RECT place = {x, y, x + square, y + square};
      ::FillRect(dc, &place, brush);
    }
  }
}

}  // namespace corvane::test
