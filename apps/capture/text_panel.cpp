#include "apps/capture/text_panel.h"

#include "apps/capture/palette.h"
#include "apps/capture/texts.h"

namespace capture {
namespace {

using namespace corvane;

constexpr int kFontHeight = 22;
constexpr UINT kFormat = DT_WORDBREAK | DT_NOPREFIX;

// Draws with the panel's font; with DT_CALCRECT only measures.
void draw_lines(HDC dc, const CString& text, RECT& rect, UINT format) {
  const LOGFONTW description = ui_font(kFontHeight);
  HFONT font = CreateFontIndirectW(&description);
  HGDIOBJ former = SelectObject(dc, font);
  SetTextColor(dc, kTextColor);
  SetBkMode(dc, TRANSPARENT);
  ::DrawTextW(dc, text, text.GetLength(), &rect, format);
  SelectObject(dc, former);
  DeleteObject(font);
}

}  // namespace

void CTextPanel::SetText(const CString& text) {
  text_ = text;
  ScrollTo(0);
}

void CTextPanel::DrawContent(HDC dc, const RECT& content) {
  RECT rect = content;
  OffsetRect(&rect, 0, -scroll());
  draw_lines(dc, text_, rect, kFormat | DT_NOCLIP);
}

int CTextPanel::ContentHeight(int width) {
  RECT rect{0, 0, width, 0};
  HDC dc = CreateCompatibleDC(nullptr);
  draw_lines(dc, text_, rect, kFormat | DT_CALCRECT);
  DeleteDC(dc);
  return rect.bottom;
}

}  // namespace capture
