#include "apps/capture/picture_view.h"

#include <algorithm>
#include <string>

#include "apps/capture/fill.h"
#include "apps/capture/palette.h"
#include "apps/capture/texts.h"
#include "corvane/layers/crop/picture_mapping.h"
#include "corvane/platform/drawing/gdi_dc.h"

namespace capture {
namespace {

using namespace corvane;

constexpr UINT_PTR kNoticeTimer = 1;
constexpr UINT kNoticeTime = 4000;  // milliseconds
constexpr int kMargin = 16;
constexpr int kNoticeHeight = 38;
constexpr int kNoticePadding = 18;
constexpr int kNoticeFontHeight = 17;
constexpr int kEmptyLineDistance = 36;

}  // namespace

const MessageMap* CPictureView::GetMessageMap() const {
  static constexpr auto kMessages =
      MessageTable(On<WM_ERASEBKGND>(&CPictureView::OnEraseBkgnd),
                   On<WM_PAINT>(&CPictureView::OnPaint), On<WM_TIMER>(&CPictureView::OnTimer));
  static const MessageMap map = kMessages.extending(CWnd::GetMessageMap());
  return &map;
}

void CPictureView::SetPicture(const CPicture* picture) {
  picture_ = picture;
  Invalidate(FALSE);
}

RECT CPictureView::ShownRect() const {
  CRect client;
  GetClientRect(client);
  client.DeflateRect(kMargin, kMargin);
  return picture_ == nullptr ? RECT{} : fit_picture(picture_->size(), client);
}

void CPictureView::ShowNotice(const CString& text) {
  notice_ = text;
  SetTimer(kNoticeTimer, kNoticeTime);
  Invalidate(FALSE);
}

void CPictureView::ShowBusy(const CString& text) {
  KillTimer(kNoticeTimer);
  notice_ = text;
  Invalidate(FALSE);
}

BOOL CPictureView::OnEraseBkgnd(CDC*) { return TRUE; }

void CPictureView::OnPaint() {
  const CPaintDC dc(this);
  CRect client;
  GetClientRect(client);
  const RECT shown = ShownRect();
  fill_with(dc, client, kStageColor);
  if (picture_ != nullptr) {
    CGdiDC().DrawImage(dc, picture_->image(), CRect(shown));
  } else {
    draw_empty_stage(dc, client);
  }
  if (!notice_.IsEmpty()) draw_notice(dc, client);
}

void CPictureView::SetEmptyText(const CString& text) {
  empty_text_ = text;
  Invalidate(FALSE);
}

void CPictureView::draw_empty_stage(HDC dc, const RECT& client) const {
  const std::wstring text = empty_text_.AsStdString();
  const std::size_t end = std::min(text.find(L'\n'), text.size());
  LOGFONTW font = ui_font(24);
  CRect first(client);
  first.bottom -= kEmptyLineDistance;
  CGdiDC().DrawTextW(dc, text.substr(0, end).c_str(), &font, first, kTextArgb,
                     DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  if (end == text.size()) return;
  font = ui_font(17);
  CRect second(client);
  second.top += kEmptyLineDistance;
  CGdiDC().DrawTextW(dc, text.substr(end + 1).c_str(), &font, second, kQuietTextArgb,
                     DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void CPictureView::draw_notice(HDC dc, const RECT& client) const {
  constexpr UINT kLines = DT_CENTER | DT_WORDBREAK | DT_NOPREFIX;
  const LOGFONTW font = ui_font(kNoticeFontHeight);
  const HFONT handle = ::CreateFontIndirectW(&font);
  const HGDIOBJ former = ::SelectObject(dc, handle);
  const int most = client.right - 2 * kMargin - 2 * kNoticePadding;
  CRect text(0, 0, std::max(most, 1), 0);
  ::DrawTextW(dc, notice_, notice_.GetLength(), text, kLines | DT_CALCRECT);
  CRect box(0, 0, std::min<int>(text.Width(), most) + 2 * kNoticePadding,
            text.Height() + kNoticeHeight - kNoticeFontHeight);
  box.OffsetRect((client.right - box.Width()) / 2, client.bottom - 2 * kMargin - box.Height());
  fill_with(dc, box, kPanelColor);
  frame_with(dc, box, kPanelEdgeColor);
  fill_with(dc, CRect(box.left, box.top, box.left + 4, box.bottom), kAccentColor);
  text = box;
  text.DeflateRect(kNoticePadding, (kNoticeHeight - kNoticeFontHeight) / 2);
  ::SetTextColor(dc, kTextColor);
  ::SetBkMode(dc, TRANSPARENT);
  ::DrawTextW(dc, notice_, notice_.GetLength(), text, kLines | DT_END_ELLIPSIS);
  ::SelectObject(dc, former);
  ::DeleteObject(handle);
}

void CPictureView::OnTimer(UINT_PTR id) {
  if (id != kNoticeTimer) {
    Default();
    return;
  }
  KillTimer(kNoticeTimer);
  notice_.Empty();
  Invalidate(FALSE);
}

}  // namespace capture
