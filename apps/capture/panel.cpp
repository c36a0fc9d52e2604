#include "apps/capture/panel.h"

#include <algorithm>

#include "apps/capture/fill.h"

namespace capture {
namespace {

using namespace corvane;

constexpr int kPanelList = 101;
constexpr int kCloseButton = 1;
constexpr int kPadding = 22;
constexpr int kWheelStep = 60;  // pixels a notch
constexpr int kScrollMarkWidth = 4;

}  // namespace

const MessageMap* CPanel::GetMessageMap() const {
  static constexpr auto kMessages =
      MessageTable(On<WM_CREATE>(&CPanel::OnCreate), On<WM_ERASEBKGND>(&CPanel::OnEraseBkgnd),
                   On<WM_PAINT>(&CPanel::OnPaint), On<WM_SIZE>(&CPanel::OnSize),
                   On<WM_MOUSEWHEEL>(&CPanel::OnMouseWheel));
  static const MessageMap map = kMessages.extending(CWnd::GetMessageMap());
  return &map;
}

bool CPanel::Open(CWnd* owner, const CString& title) {
  title_ = title;
  HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
  const wchar_t* window_class = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, arrow);
  return CreateEx(WS_EX_TOOLWINDOW, window_class, title, WS_POPUP | WS_CLIPCHILDREN, 0, 0, 0, 0,
                  owner->GetSafeHwnd(), nullptr);
}

void CPanel::SetTitle(const CString& title) {
  title_ = title;
  Invalidate(FALSE);
}

void CPanel::ShowIn(const RECT& screen_area, SIZE size) {
  const int width = std::min<int>(size.cx, screen_area.right - screen_area.left - 2 * kPadding);
  const int height = std::min<int>(size.cy, screen_area.bottom - screen_area.top - 2 * kPadding);
  const int left = (screen_area.left + screen_area.right - width) / 2;
  const int top = (screen_area.top + screen_area.bottom - height) / 2;
  scroll_ = 0;
  MoveWindow(left, top, width, height);
  ShowWindow(SW_SHOW);
  Invalidate(FALSE);
}

void CPanel::Close() { ShowWindow(SW_HIDE); }

int CPanel::OnCreate(LPCREATESTRUCT creation) {
  if (CWnd::OnCreate(creation) == -1) return -1;
  skin_.Load({kPanelList});
  skin_.LoadGdiBtn(close_, close_rect_, this, kCloseButton);
  return 0;
}

BOOL CPanel::OnCommand(WPARAM wparam, LPARAM lparam) {
  if (lparam == 0 || reinterpret_cast<HWND>(lparam) != close_.GetSafeHwnd()) {
    return CWnd::OnCommand(wparam, lparam);
  }
  Close();
  return TRUE;
}

BOOL CPanel::PreTranslateMessage(MSG* message) {
  if (message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE) {
    Close();
    return TRUE;
  }
  return CWnd::PreTranslateMessage(message);
}

RECT CPanel::ContentRect() const {
  CRect client;
  GetClientRect(client);
  return {kPadding, title_height(), std::max<LONG>(client.right - kPadding, kPadding),
          std::max<LONG>(client.bottom - kPadding, title_height())};
}

void CPanel::ScrollTo(int position) {
  const RECT content = ContentRect();
  const int limit = ContentHeight(content.right - content.left) - (content.bottom - content.top);
  scroll_ = std::clamp(position, 0, std::max(limit, 0));
  Invalidate(FALSE);
}

BOOL CPanel::OnEraseBkgnd(CDC*) { return TRUE; }

void CPanel::OnPaint() {
  const CPaintDC dc(this);
  CRect client;
  GetClientRect(client);
  if (!buffer_.HasSizeOf(client)) return;
  draw_frame(buffer_);
  const RECT content = ContentRect();
  const int saved = SaveDC(buffer_);
  IntersectClipRect(buffer_, content.left, content.top, content.right, content.bottom);
  DrawContent(buffer_, content);
  RestoreDC(buffer_, saved);
  draw_scroll_mark(buffer_, content);
  buffer_.Paste(dc, client);
}

void CPanel::draw_frame(HDC dc) {
  CRect client;
  GetClientRect(client);
  fill_with(dc, client, look_.color(Shade::panel));
  frame_with(dc, client, look_.color(Shade::edge));
  const CRect title(kPadding, 0, close_rect_.left, title_height());
  const LOGFONTW font = look_.font(Text::recognition);
  draw_text(dc, title_, title, font, look_.color(Shade::text), DT_VCENTER | DT_SINGLELINE);
}

void CPanel::draw_scroll_mark(HDC dc, const RECT& content) {
  const int visible = content.bottom - content.top;
  const int whole = ContentHeight(content.right - content.left);
  if (visible <= 0 || whole <= visible) return;
  const int length = std::max(visible * visible / whole, 24);
  const int top = content.top + (visible - length) * scroll_ / (whole - visible);
  const int left = content.right + kPadding / 2;
  fill_with(dc, CRect(left, top, left + kScrollMarkWidth, top + length), look_.color(Shade::edge));
}

void CPanel::OnSize(UINT kind, int width, int height) {
  CWnd::OnSize(kind, width, height);
  const CRect client(0, 0, width, height);
  if (!client.IsRectEmpty()) buffer_.CreateBufferDC(nullptr, client);
  const int margin = (title_height() - close_rect_.Height()) / 2;
  close_rect_.OffsetRect(width - margin - close_rect_.right, margin - close_rect_.top);
  if (close_.GetSafeHwnd() != nullptr) close_.MoveWindow(close_rect_);
  if (buffer_.HasSizeOf(client)) {
    draw_frame(buffer_);
    close_.SetBkGnd(buffer_, close_rect_);
  }
}

BOOL CPanel::OnMouseWheel(UINT, short distance, CPoint) {
  ScrollTo(scroll_ - distance * kWheelStep / WHEEL_DELTA);
  return TRUE;
}

}  // namespace capture
