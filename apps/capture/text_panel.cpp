#include "apps/capture/text_panel.h"

#include <algorithm>
#include <string_view>

#include "apps/capture/clipboard.h"
#include "apps/capture/fill.h"

namespace capture {

using namespace corvane;

// A context with the box's font, and what it measures.
class CTextPanel::FontInUse {
 public:
  // Without a context of the caller's, only to measure.
  explicit FontInUse(const CLook& look, HDC dc = nullptr)
      : own_(dc == nullptr ? CreateCompatibleDC(nullptr) : nullptr),
        dc_(dc == nullptr ? own_ : dc) {
    const LOGFONTW description = look.font(Text::nothing_recognised);
    font_ = CreateFontIndirectW(&description);
    former_ = SelectObject(dc_, font_);
  }
  ~FontInUse() {
    SelectObject(dc_, former_);
    DeleteObject(font_);
    if (own_ != nullptr) DeleteDC(own_);
  }
  FontInUse(const FontInUse&) = delete;
  FontInUse& operator=(const FontInUse&) = delete;

  CTextLines::Measure measure() const {
    return [dc = dc_](std::wstring_view text) {
      SIZE size{};
      GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
      return static_cast<int>(size.cx);
    };
  }
  int line_height() const {
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc_, &metrics);
    return std::max<int>(metrics.tmHeight + metrics.tmExternalLeading, 1);
  }

 private:
  HDC own_;
  HDC dc_;
  HFONT font_;
  HGDIOBJ former_;
};

const MessageMap* CTextPanel::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(
      On<WM_LBUTTONDOWN>(&CTextPanel::OnLButtonDown),
      On<WM_LBUTTONDBLCLK>(&CTextPanel::OnLButtonDown), On<WM_MOUSEMOVE>(&CTextPanel::OnMouseMove),
      On<WM_LBUTTONUP>(&CTextPanel::OnLButtonUp),
      On<WM_CAPTURECHANGED>(&CTextPanel::OnCaptureChanged),
      On<WM_SETCURSOR>(&CTextPanel::OnSetCursor));
  static const MessageMap map = kMessages.extending(CPanel::GetMessageMap());
  return &map;
}

void CTextPanel::SetText(const CString& text) {
  text_ = text.AsStdString();
  width_.reset();
  selection_.Clear();
  ScrollTo(0);
}

void CTextPanel::SelectAll() {
  selection_.SelectAll(text_.size());
  Invalidate(FALSE);
}

bool CTextPanel::CopyText() {
  const TextRange range = selection_.range();
  const std::wstring_view all = text_;
  return copy_text(m_hWnd, range.empty() ? all : all.substr(range.first, range.last - range.first));
}

void CTextPanel::lay_out(int width) {
  if (width_ == width) return;
  width_ = width;
  lines_.LayOut(text_, width, FontInUse(look()).measure());
}

void CTextPanel::DrawContent(HDC dc, const RECT& content) {
  lay_out(content.right - content.left);
  const FontInUse font(look(), dc);
  const int height = font.line_height();
  SetTextColor(dc, look().color(Shade::text));
  SetBkMode(dc, TRANSPARENT);
  POINT place{content.left, content.top - scroll()};
  for (const TextRange& line : lines_.lines()) {
    const bool seen = place.y + height > content.top && place.y < content.bottom;
    if (seen) draw_line(dc, line, place, font.measure(), height);
    place.y += height;
  }
}

void CTextPanel::draw_line(HDC dc, const TextRange& line, POINT place,
                           const CTextLines::Measure& measure, int height) {
  const TextRange chosen = selection_.range();
  const std::size_t first = std::clamp(chosen.first, line.first, line.last);
  const std::size_t last = std::clamp(chosen.last, line.first, line.last);
  if (first < last) {
    const LONG left = place.x + measure(lines_.part({line.first, first}));
    const LONG right = place.x + measure(lines_.part({line.first, last}));
    fill_with(dc, CRect(left, place.y, right, place.y + height), look().color(Shade::selection));
  }
  const std::wstring_view text = lines_.part(line);
  TextOutW(dc, place.x, place.y, text.data(), static_cast<int>(text.size()));
}

int CTextPanel::ContentHeight(int width) {
  lay_out(width);
  return static_cast<int>(lines_.lines().size()) * FontInUse(look()).line_height();
}

std::size_t CTextPanel::position_at(POINT point) {
  const RECT content = ContentRect();
  lay_out(content.right - content.left);
  const FontInUse font(look());
  const LONG down = point.y - content.top + scroll();
  const int line = down < 0 ? -1 : static_cast<int>(down) / font.line_height();
  return lines_.PositionAt(static_cast<int>(point.x - content.left), line, font.measure());
}

void CTextPanel::OnLButtonDown(UINT, CPoint point) {
  selection_.Begin(position_at(point));
  selecting_ = true;
  SetCapture();
  Invalidate(FALSE);
}

void CTextPanel::OnMouseMove(UINT, CPoint point) {
  if (!selecting_) return;
  const CRect content(ContentRect());
  if (point.y < content.top) ScrollTo(scroll() - (content.top - point.y));
  if (point.y > content.bottom) ScrollTo(scroll() + (point.y - content.bottom));
  selection_.Extend(position_at(point));
  Invalidate(FALSE);
}

void CTextPanel::OnLButtonUp(UINT, CPoint) {
  if (selecting_) ::ReleaseCapture();
}

void CTextPanel::OnCaptureChanged(CWnd*) { selecting_ = false; }

BOOL CTextPanel::OnSetCursor(CWnd* window, UINT hit_code, UINT mouse_message) {
  CPoint point;
  ::GetCursorPos(&point);
  ScreenToClient(&point);
  if (window != this || !CRect(ContentRect()).PtInRect(point)) {
    return CPanel::OnSetCursor(window, hit_code, mouse_message);
  }
  ::SetCursor(::LoadCursorW(nullptr, IDC_IBEAM));
  return TRUE;
}

}  // namespace capture
