#include "corvane/platform/system/common_controls/control.h"

namespace corvane::system {

RECT Control::client() const {
  RECT rect{};
  GetClientRect(window_, &rect);
  return rect;
}

HFONT Control::font() const {
  return font_ != nullptr ? font_ : static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

std::wstring Control::text() const {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window_)), L'\0');
  GetWindowTextW(window_, text.data(), static_cast<int>(text.size()) + 1);
  return text;
}

HBRUSH Control::background(HDC dc, UINT question) const {
  const LRESULT answer = SendMessageW(GetParent(window_), question, reinterpret_cast<WPARAM>(dc),
                                      reinterpret_cast<LPARAM>(window_));
  return answer != 0 ? reinterpret_cast<HBRUSH>(answer) : GetSysColorBrush(COLOR_BTNFACE);
}

void Control::tell_parent(UINT code) const {
  const auto id = static_cast<WORD>(GetDlgCtrlID(window_));
  SendMessageW(GetParent(window_), WM_COMMAND, MAKEWPARAM(id, code),
               reinterpret_cast<LPARAM>(window_));
}

LRESULT Control::on_paint(HDC given) {
  PAINTSTRUCT ps{};
  HDC dc = given != nullptr ? given : BeginPaint(window_, &ps);
  if (dc == nullptr) return 0;
  const HGDIOBJ old_font = SelectObject(dc, font());
  SetBkMode(dc, TRANSPARENT);
  paint(dc);
  SelectObject(dc, old_font);
  if (given == nullptr) EndPaint(window_, &ps);
  return 0;
}

LRESULT Control::handle_shared(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_PAINT:
    case WM_PRINTCLIENT:
      return on_paint(reinterpret_cast<HDC>(wparam));
    case WM_ERASEBKGND:
      return TRUE;  // paint() covers everything
    case WM_GETFONT:
      return reinterpret_cast<LRESULT>(font_);
    case WM_SETFONT:
      font_ = reinterpret_cast<HFONT>(wparam);
      if (LOWORD(static_cast<DWORD_PTR>(lparam)) != 0) redraw();
      return 0;
    case WM_SETTEXT:
    case WM_ENABLE:
    case WM_SIZE:
      redraw();
      break;
    default:
      break;
  }
  return DefWindowProcW(window_, message, wparam, lparam);
}

}  // namespace corvane::system
