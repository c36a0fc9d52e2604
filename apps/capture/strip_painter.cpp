#include "apps/capture/strip_painter.h"

#include <cwchar>

#include "apps/capture/fill.h"
#include "apps/capture/palette.h"
#include "apps/capture/texts.h"
#include "corvane/layers/crop/picture_mapping.h"
#include "corvane/platform/drawing/gdi_dc.h"

namespace capture {
namespace {

using namespace corvane;

constexpr int kNameFontHeight = 14;
constexpr int kMarkWidth = 2;

// In the platform's solid way, which can end a long name with dots.
void draw_line(HDC dc, const wchar_t* text, RECT place, COLORREF color) {
  const LOGFONTW description = ui_font(kNameFontHeight);
  HFONT font = CreateFontIndirectW(&description);
  HGDIOBJ former = SelectObject(dc, font);
  SetTextColor(dc, color);
  SetBkMode(dc, TRANSPARENT);
  ::DrawTextW(dc, text, static_cast<int>(std::wcslen(text)), &place,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
  SelectObject(dc, former);
  DeleteObject(font);
}

void draw_placeholder(HDC dc, const RECT& place, bool broken) {
  fill_with(dc, place, kStageColor);
  frame_with(dc, place, kPanelEdgeColor);
  if (broken) draw_line(dc, L"无法显示", place, kQuietTextColor);
}

}  // namespace

void draw_strip_background(HDC dc, const RECT& client) {
  fill_with(dc, client, kPanelColor);
  fill_with(dc, {client.left, client.top, client.right, client.top + 1}, kPanelEdgeColor);
}

void draw_strip_cell(HDC dc, const CStripLayout& layout, int index, const StripCell& cell) {
  RECT place = layout.Cell(index);
  if (cell.hovered || cell.marked) fill_with(dc, place, kRowHoverColor);
  const RECT box = layout.Picture(index);
  const bool drawable = cell.thumbnail != nullptr && *cell.thumbnail != nullptr;
  if (drawable) {
    Gdiplus::Image* image = cell.thumbnail->get();
    const SIZE size{static_cast<LONG>(image->GetWidth()), static_cast<LONG>(image->GetHeight())};
    CGdiDC().DrawImage(dc, image, CRect(fit_picture(size, box)));
  } else {
    draw_placeholder(dc, box, cell.thumbnail != nullptr);
  }
  const bool bright = cell.hovered || cell.marked;
  draw_line(dc, cell.name, layout.Name(index), bright ? kTextColor : kQuietTextColor);
  if (!cell.marked) return;
  for (int inset = 0; inset < kMarkWidth; ++inset) {
    frame_with(dc, place, kAccentColor);
    InflateRect(&place, -1, -1);
  }
}

void draw_strip_scroll(HDC dc, const CStripLayout& layout, bool held) {
  const RECT track = layout.ScrollTrack();
  if (IsRectEmpty(&track)) return;
  fill_with(dc, track, kStageColor);
  fill_with(dc, layout.ScrollMark(), held ? kQuietTextColor : kScrollMarkColor);
}

void draw_empty_strip(HDC dc, const RECT& client, const CString& text) {
  draw_line(dc, text, client, kQuietTextColor);
}

}  // namespace capture
