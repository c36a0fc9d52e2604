#include "apps/capture/text_panel.h"

namespace capture {
namespace {

using namespace corvane;

constexpr UINT kFormat = DT_WORDBREAK | DT_NOPREFIX;

}  // namespace

void CTextPanel::SetText(const CString& text) {
  text_ = text;
  ScrollTo(0);
}

void CTextPanel::draw_lines(HDC dc, RECT& rect, UINT format) const {
  const LOGFONTW description = look().font(Text::nothing_recognised);
  HFONT font = CreateFontIndirectW(&description);
  HGDIOBJ former = SelectObject(dc, font);
  SetTextColor(dc, look().color(Shade::text));
  SetBkMode(dc, TRANSPARENT);
  ::DrawTextW(dc, text_, text_.GetLength(), &rect, format);
  SelectObject(dc, former);
  DeleteObject(font);
}

void CTextPanel::DrawContent(HDC dc, const RECT& content) {
  RECT rect = content;
  OffsetRect(&rect, 0, -scroll());
  draw_lines(dc, rect, kFormat | DT_NOCLIP);
}

int CTextPanel::ContentHeight(int width) {
  RECT rect{0, 0, width, 0};
  HDC dc = CreateCompatibleDC(nullptr);
  draw_lines(dc, rect, kFormat | DT_CALCRECT);
  DeleteDC(dc);
  return rect.bottom;
}

}  // namespace capture
