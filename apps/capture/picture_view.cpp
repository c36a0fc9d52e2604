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
constexpr int kEmptyLineSpace = 15;
constexpr UINT kLines = DT_CENTER | DT_WORDBREAK;

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
  const LOGFONTW large = look_.font(Text::no_pictures);
  const LOGFONTW small = look_.font(Text::how_to_begin);
  CRect first(client);
  first.DeflateRect(kMargin, 0);
  CRect second(first);
  const CRect needed(
      draw_text(dc, empty_text_, CRect(0, 0, first.Width(), 0), large, 0, kLines | DT_CALCRECT));
  const int middle = first.CenterPoint().y;
  first.top = middle - needed.Height() - kEmptyLineSpace / 2;
  second.top = middle + kEmptyLineSpace / 2;
  draw_text(dc, empty_text_, first, large, look_.color(Shade::text), kLines);
  draw_text(dc, more_empty_text_, second, small, look_.color(Shade::quiet_text), kLines);
}

void CPictureView::draw_notice(HDC dc, const RECT& client) const {
  const LOGFONTW font = look_.font(Text::saved);
  const int most = client.right - 2 * kMargin - 2 * kNoticePadding;
  CRect text(
      draw_text(dc, notice_, CRect(0, 0, std::max(most, 1), 0), font, 0, kLines | DT_CALCRECT));
  CRect box(0, 0, std::min<int>(text.Width(), most) + 2 * kNoticePadding,
            text.Height() + 2 * kNoticeSpace);
  box.OffsetRect((client.right - box.Width()) / 2, client.bottom - 2 * kMargin - box.Height());
  fill_with(dc, box, look_.color(Shade::panel));
  frame_with(dc, box, look_.color(Shade::edge));
  fill_with(dc, CRect(box.left, box.top, box.left + 4, box.bottom), look_.color(Shade::accent));
  text = box;
  text.DeflateRect(kNoticePadding, kNoticeSpace);
  draw_text(dc, notice_, text, font, look_.color(Shade::text), kLines);
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
