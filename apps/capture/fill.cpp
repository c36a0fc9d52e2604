#include "apps/capture/fill.h"

namespace capture {

void fill_with(HDC dc, const RECT& rect, COLORREF color) {
  HBRUSH brush = CreateSolidBrush(color);
  FillRect(dc, &rect, brush);
  DeleteObject(brush);
}

void frame_with(HDC dc, const RECT& rect, COLORREF color) {
  HBRUSH brush = CreateSolidBrush(color);
  FrameRect(dc, &rect, brush);
  DeleteObject(brush);
}

RECT draw_text(HDC dc, const corvane::CString& text, RECT rect, const LOGFONTW& font,
               COLORREF color, UINT format) {
  const HFONT handle = CreateFontIndirectW(&font);
  const HGDIOBJ former = SelectObject(dc, handle);
  SetTextColor(dc, color);
  SetBkMode(dc, TRANSPARENT);
  DrawTextW(dc, text, text.GetLength(), &rect, format | DT_NOPREFIX | DT_END_ELLIPSIS);
  SelectObject(dc, former);
  DeleteObject(handle);
  return rect;
}

}  // namespace capture
