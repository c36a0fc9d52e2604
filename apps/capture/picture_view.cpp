#include "apps/capture/picture_view.h"

#include <algorithm>

#include "apps/capture/fill.h"
#include "corvane/platform/drawing/gdi_dc.h"

namespace capture {
namespace {

using namespace corvane;

constexpr UINT_PTR kNoticeTimer = 1;
constexpr UINT kNoticeTime = 4000;  // milliseconds
constexpr int kMargin = 16;
constexpr int kNoticePadding = 18;
constexpr int kNoticeSpace = 10;  // above and below its lines
constexpr int kEmptyLineDistance = 36;

}  // namespace

const MessageMap* CPictureView::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(
      On<WM_ERASEBKGND>(&CPictureView::OnEraseBkgnd), On<WM_PAINT>(&CPictureView::OnPaint),
      On<WM_TIMER>(&CPictureView::OnTimer), On<WM_LBUTTONDOWN>(&CPictureView::OnLButtonDown),
      On<WM_LBUTTONDBLCLK>(&CPictureView::OnLButtonDown),
      On<WM_MOUSEMOVE>(&CPictureView::OnMouseMove), On<WM_LBUTTONUP>(&CPictureView::OnLButtonUp),
      On<WM_CAPTURECHANGED>(&CPictureView::OnCaptureChanged),
      On<WM_SETCURSOR>(&CPictureView::OnSetCursor));
  static const MessageMap map = kMessages.extending(CWnd::GetMessageMap());
  return &map;
}

void CPictureView::SetPicture(const CPicture* picture) {
  picture_ = picture;
  zoom_.SetPicture(picture != nullptr ? picture->size() : SIZE{});
  if (grip_) ::ReleaseCapture();
  Invalidate(FALSE);
}

RECT CPictureView::area() const {
  CRect client;
  GetClientRect(client);
  client.DeflateRect(kMargin, kMargin);
  return client;
}

RECT CPictureView::ShownRect() const { return zoom_.Shown(area()); }

POINT CPictureView::Middle() const { return CRect(area()).CenterPoint(); }

void CPictureView::Fit() {
  zoom_.Fit();
  Invalidate(FALSE);
}

void CPictureView::ZoomBy(int steps, POINT about) {
  zoom_.ZoomBy(steps, about, area());
  Invalidate(FALSE);
}

void CPictureView::ZoomToOwnSize() {
  zoom_.ZoomToOwnSize(Middle(), area());
  Invalidate(FALSE);
}

void CPictureView::OnLButtonDown(UINT, CPoint point) {
  if (!zoom_.zoomed()) return;
  grip_ = point;
  SetCapture();
}

void CPictureView::OnMouseMove(UINT, CPoint point) {
  if (!grip_) return;
  zoom_.Pan({point.x - grip_->x, point.y - grip_->y}, area());
  grip_ = point;
  Invalidate(FALSE);
}

void CPictureView::OnLButtonUp(UINT, CPoint) {
  if (grip_) ::ReleaseCapture();
}

void CPictureView::OnCaptureChanged(CWnd*) { grip_.reset(); }

BOOL CPictureView::OnSetCursor(CWnd* window, UINT hit_code, UINT mouse_message) {
  if (!zoom_.zoomed()) return CWnd::OnSetCursor(window, hit_code, mouse_message);
  ::SetCursor(::LoadCursorW(nullptr, IDC_SIZEALL));
  return TRUE;
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
  fill_with(dc, client, look_.color(Shade::stage));
  if (picture_ != nullptr) {
    CGdiDC().DrawImage(dc, picture_->image(), CRect(shown));
  } else {
    draw_empty_stage(dc, client);
  }
  if (!notice_.IsEmpty()) draw_notice(dc, client);
}

void CPictureView::SetEmptyText(const CString& text, const CString& more) {
  empty_text_ = text;
  more_empty_text_ = more;
  Invalidate(FALSE);
}

void CPictureView::draw_empty_stage(HDC dc, const RECT& client) const {
  constexpr UINT kFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
  const LOGFONTW large = look_.font(Text::no_pictures);
  CRect first(client);
  first.bottom -= kEmptyLineDistance;
  CGdiDC().DrawTextW(dc, empty_text_, &large, first, look_.argb(Shade::text), kFormat);
  const LOGFONTW small = look_.font(Text::how_to_begin);
  CRect second(client);
  second.top += kEmptyLineDistance;
  CGdiDC().DrawTextW(dc, more_empty_text_, &small, second, look_.argb(Shade::quiet_text), kFormat);
}

void CPictureView::draw_notice(HDC dc, const RECT& client) const {
  constexpr UINT kLines = DT_CENTER | DT_WORDBREAK | DT_NOPREFIX;
  const LOGFONTW font = look_.font(Text::saved);
  const HFONT handle = ::CreateFontIndirectW(&font);
  const HGDIOBJ former = ::SelectObject(dc, handle);
  const int most = client.right - 2 * kMargin - 2 * kNoticePadding;
  CRect text(0, 0, std::max(most, 1), 0);
  ::DrawTextW(dc, notice_, notice_.GetLength(), text, kLines | DT_CALCRECT);
  CRect box(0, 0, std::min<int>(text.Width(), most) + 2 * kNoticePadding,
            text.Height() + 2 * kNoticeSpace);
  box.OffsetRect((client.right - box.Width()) / 2, client.bottom - 2 * kMargin - box.Height());
  fill_with(dc, box, look_.color(Shade::panel));
  frame_with(dc, box, look_.color(Shade::edge));
  fill_with(dc, CRect(box.left, box.top, box.left + 4, box.bottom), look_.color(Shade::accent));
  text = box;
  text.DeflateRect(kNoticePadding, kNoticeSpace);
  ::SetTextColor(dc, look_.color(Shade::text));
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
