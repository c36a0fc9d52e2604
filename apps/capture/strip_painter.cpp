#include "apps/capture/strip_painter.h"

#include <cwchar>

#include "apps/capture/fill.h"
#include "corvane/layers/crop/picture_mapping.h"
#include "corvane/platform/drawing/gdi_dc.h"

namespace capture {
namespace {

using namespace corvane;

constexpr int kMarkWidth = 2;

}  // namespace

// In the platform's solid way, which can end a long name with dots.
void StripPainter::draw_line(const wchar_t* text, RECT place, Shade shade) const {
  const LOGFONTW description = look_.font(Text::cannot_show);
  HFONT font = CreateFontIndirectW(&description);
  HGDIOBJ former = SelectObject(dc_, font);
  SetTextColor(dc_, look_.color(shade));
  SetBkMode(dc_, TRANSPARENT);
  ::DrawTextW(dc_, text, static_cast<int>(std::wcslen(text)), &place,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
  SelectObject(dc_, former);
  DeleteObject(font);
}

void StripPainter::draw_placeholder(const RECT& place, bool broken) const {
  fill_with(dc_, place, look_.color(Shade::stage));
  frame_with(dc_, place, look_.color(Shade::edge));
  if (broken) draw_line(look_.text(Text::cannot_show), place, Shade::quiet_text);
}

void StripPainter::draw_background(const RECT& client) const {
  fill_with(dc_, client, look_.color(Shade::panel));
  fill_with(dc_, {client.left, client.top, client.right, client.top + 1}, look_.color(Shade::edge));
}

void StripPainter::draw_cell(const CStripLayout& layout, int index, const StripCell& cell) const {
  RECT place = layout.Cell(index);
  const bool bright = cell.hovered || cell.marked;
  if (bright) fill_with(dc_, place, look_.color(Shade::hovered_row));
  const RECT box = layout.Picture(index);
  const bool drawable = cell.thumbnail != nullptr && *cell.thumbnail != nullptr;
  if (drawable) {
    Gdiplus::Image* image = cell.thumbnail->get();
    const SIZE size{static_cast<LONG>(image->GetWidth()), static_cast<LONG>(image->GetHeight())};
    CGdiDC().DrawImage(dc_, image, CRect(fit_picture(size, box)));
  } else {
    draw_placeholder(box, cell.thumbnail != nullptr);
  }
  draw_line(cell.name, layout.Name(index), bright ? Shade::text : Shade::quiet_text);
  if (!cell.marked) return;
  for (int inset = 0; inset < kMarkWidth; ++inset) {
    frame_with(dc_, place, look_.color(Shade::accent));
    InflateRect(&place, -1, -1);
  }
}

void StripPainter::draw_scroll(const CStripLayout& layout, bool held) const {
  const RECT track = layout.ScrollTrack();
  if (IsRectEmpty(&track)) return;
  fill_with(dc_, track, look_.color(Shade::stage));
  fill_with(dc_, layout.ScrollMark(), look_.color(held ? Shade::quiet_text : Shade::scroll_mark));
}

void StripPainter::draw_empty(const RECT& client, const CString& text) const {
  draw_line(text, client, Shade::quiet_text);
}

}  // namespace capture
