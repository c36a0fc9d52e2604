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
void DrawLine(HDC dc, const wchar_t* text, RECT place, COLORREF color) {
  LOGFONTW description = UiFont(kNameFontHeight);
  HFONT font = CreateFontIndirectW(&description);
  HGDIOBJ former = SelectObject(dc, font);
  SetTextColor(dc, color);
  SetBkMode(dc, TRANSPARENT);
  ::DrawTextW(dc, text, static_cast<int>(std::wcslen(text)), &place,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
  SelectObject(dc, former);
  DeleteObject(font);
}

void DrawPlaceholder(HDC dc, const RECT& place, bool broken) {
  FillWith(dc, place, kStageColor);
  FrameWith(dc, place, kPanelEdgeColor);
  if (broken) DrawLine(dc, L"无法显示", place, kQuietTextColor);
}

}  // namespace

void DrawStripBackground(HDC dc, const RECT& client) {
  FillWith(dc, client, kPanelColor);
  FillWith(dc, {client.left, client.top, client.right, client.top + 1}, kPanelEdgeColor);
}

void DrawStripCell(HDC dc, const CStripLayout& layout, int index, const StripCell& cell) {
  RECT place = layout.Cell(index);
  if (cell.hovered || cell.marked) FillWith(dc, place, kRowHoverColor);
  RECT box = layout.Picture(index);
  bool drawable = cell.thumbnail != nullptr && *cell.thumbnail != nullptr;
  if (drawable) {
    Gdiplus::Image* image = cell.thumbnail->get();
    SIZE size{static_cast<LONG>(image->GetWidth()), static_cast<LONG>(image->GetHeight())};
    CGdiDC().DrawImage(dc, image, CRect(fit_picture(size, box)));
  } else {
    DrawPlaceholder(dc, box, cell.thumbnail != nullptr);
  }
  bool bright = cell.hovered || cell.marked;
  DrawLine(dc, cell.name, layout.Name(index), bright ? kTextColor : kQuietTextColor);
  if (!cell.marked) return;
  for (int inset = 0; inset < kMarkWidth; ++inset) {
    FrameWith(dc, place, kAccentColor);
    InflateRect(&place, -1, -1);
  }
}

void DrawStripScroll(HDC dc, const CStripLayout& layout, bool held) {
  RECT track = layout.ScrollTrack();
  if (IsRectEmpty(&track)) return;
  FillWith(dc, track, kStageColor);
  FillWith(dc, layout.ScrollMark(), held ? kQuietTextColor : kScrollMarkColor);
}

void DrawEmptyStrip(HDC dc, const RECT& client, const CString& text) {
  DrawLine(dc, text, client, kQuietTextColor);
}

}  // namespace capture
