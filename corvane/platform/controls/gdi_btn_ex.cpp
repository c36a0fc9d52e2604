#include "corvane/platform/controls/gdi_btn_ex.h"

#include "corvane/platform/framework/paint_dc.h"
#include "corvane/platform/framework/window_watch.h"

namespace corvane {

const MessageMap* CGdiBtnEx::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(
      On<WM_DESTROY>(&CGdiBtnEx::OnDestroy), On<WM_PAINT>(&CGdiBtnEx::OnPaint),
      On<WM_ERASEBKGND>(&CGdiBtnEx::OnEraseBkgnd), On<WM_SIZE>(&CGdiBtnEx::OnSize),
      On<WM_SHOWWINDOW>(&CGdiBtnEx::OnShowWindow), On<WM_ENABLE>(&CGdiBtnEx::OnEnable),
      On<WM_MOUSEMOVE>(&CGdiBtnEx::OnMouseMove), On<WM_MOUSELEAVE>(&CGdiBtnEx::OnMouseLeave),
      On<WM_LBUTTONDOWN>(&CGdiBtnEx::OnLButtonDown),
      On<WM_LBUTTONDBLCLK>(&CGdiBtnEx::OnLButtonDown), On<WM_LBUTTONUP>(&CGdiBtnEx::OnLButtonUp),
      On<WM_CAPTURECHANGED>(&CGdiBtnEx::OnCaptureChanged), On<WM_SETFOCUS>(&CGdiBtnEx::OnSetFocus),
      On<WM_KILLFOCUS>(&CGdiBtnEx::OnKillFocus), On<WM_KEYDOWN>(&CGdiBtnEx::OnKeyDown),
      On<WM_KEYUP>(&CGdiBtnEx::OnKeyUp), On<WM_GETDLGCODE>(&CGdiBtnEx::OnGetDlgCode));
  static const MessageMap map = kMessages.extending(CWnd::GetMessageMap());
  return &map;
}

void CGdiBtnEx::SetSkin(const ButtonSkin& skin) {
  skin_ = skin;
  look_changed();
}

void CGdiBtnEx::SetText(const CString& text) {
  text_ = text;
  const WindowWatch watch(*this);
  if (m_hWnd != nullptr) SetWindowTextW(text_);
  if (!watch.object_gone()) look_changed();
}

void CGdiBtnEx::SetBkGnd(HDC source, const CRect& rect) {
  background_.Release();
  if (source != nullptr && background_.CreateBufferDC(source, rect)) {
    BitBlt(background_, 0, 0, rect.Width(), rect.Height(), source, rect.left, rect.top, SRCCOPY);
  }
  repaint();
}

void CGdiBtnEx::DoDraw(HDC dc, const CRect& rect) const {
  draw_button(dc, rect, skin_, text_, behavior_.appearance());
}

void CGdiBtnEx::EnableButton(int enable) {
  if (m_hWnd != nullptr) {
    EnableWindow(enable ? TRUE : FALSE);
  } else {
    behavior_.set_enabled(enable != 0);
  }
}

void CGdiBtnEx::SetSelected(int selected) {
  feed([this, selected] { behavior_.set_selected(selected != 0); });
}

// Lets an event happen and follows what it asks for. Nothing of the object is touched after the
// capture was taken from another window, whose handlers may do anything.
template <typename Event>
void CGdiBtnEx::feed(Event event) {
  const auto before = behavior_.appearance();
  event();
  if (m_hWnd == nullptr) return;
  const WindowWatch watch(*this);
  if (behavior_.appearance() != before) look_changed();
  if (watch.window_gone()) return;
  const bool captured = ::GetCapture() == m_hWnd;
  if (behavior_.wants_capture() && !captured) {
    ::SetCapture(m_hWnd);
  } else if (!behavior_.wants_capture() && captured) {
    ::ReleaseCapture();
  }
}

void CGdiBtnEx::look_changed() {
  repaint();
  if (const auto listener = look_listener_; listener) listener();
}

void CGdiBtnEx::repaint() {
  if (m_hWnd == nullptr) return;
  CRect client;
  GetClientRect(client);
  if (shows_parent(client)) {
    ::MapWindowPoints(m_hWnd, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&client), 2);
    ::InvalidateRect(::GetParent(m_hWnd), client, TRUE);
  }
  Invalidate(FALSE);
}

// Whether the button draws over what its parent has painted. A parent that clips its children
// paints nothing there.
bool CGdiBtnEx::shows_parent(const CRect& client) const {
  return !has_background(client) &&
         (::GetWindowLongW(::GetParent(m_hWnd), GWL_STYLE) & WS_CLIPCHILDREN) == 0;
}

bool CGdiBtnEx::holds(CPoint point) const {
  CRect client;
  GetClientRect(client);
  return client.PtInRect(point);
}

void CGdiBtnEx::OnDestroy() {
  CWnd::OnDestroy();
  const bool selected = behavior_.selected();
  behavior_ = ButtonBehavior();
  behavior_.set_selected(selected);
  awaits_leave_ = false;
}

BOOL CGdiBtnEx::OnEraseBkgnd(CDC*) { return TRUE; }

void CGdiBtnEx::OnPaint() {
  const WindowWatch watch(*this);
  const CPaintDC dc(this);
  if (watch.window_gone()) return;  // erasing may have ended the button
  CRect client;
  GetClientRect(client);
  if (client.IsRectEmpty()) return;
  if (shows_parent(client)) {
    background_.Paste(dc, CRect(CPoint(0, 0), background_.GetRect().Size()));
    return DoDraw(dc, client);
  }
  build_picture(client);
  if (!watch.window_gone()) picture_.Paste(dc, client);
}

void CGdiBtnEx::build_picture(const CRect& client) {
  if (!picture_.HasSizeOf(client)) picture_.CreateBufferDC(nullptr, client);
  const WindowWatch watch(*this);
  if (!has_background(client)) let_parent_draw(picture_);
  if (watch.object_gone()) return;
  // What was lent before the button got another size still stands behind most of it.
  background_.Paste(picture_, CRect(CPoint(0, 0), background_.GetRect().Size()));
  DoDraw(picture_, client);
}

// The part of the parent that lies behind, drawn by the parent in its own coordinates; a parent
// that draws nothing when asked leaves a plain face.
void CGdiBtnEx::let_parent_draw(HDC dc) const {
  CRect client;
  GetClientRect(client);
  CDC::FromHandle(dc)->FillSolidRect(client, ::GetSysColor(COLOR_BTNFACE));
  const HWND parent = ::GetParent(m_hWnd);
  POINT corner{0, 0};
  ::MapWindowPoints(m_hWnd, parent, &corner, 1);
  POINT former{};
  ::SetViewportOrgEx(dc, -corner.x, -corner.y, &former);
  ::SendMessageW(parent, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
  ::SendMessageW(parent, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
  ::SetViewportOrgEx(dc, former.x, former.y, nullptr);
}

void CGdiBtnEx::OnSize(UINT kind, int width, int height) {
  CWnd::OnSize(kind, width, height);
  Invalidate(FALSE);
}

void CGdiBtnEx::OnShowWindow(BOOL shown, UINT reason) {
  CWnd::OnShowWindow(shown, reason);
  if (shown) return;
  awaits_leave_ = false;
  feed([this] {
    behavior_.cancel();
    behavior_.leave();
  });
}

void CGdiBtnEx::OnEnable(BOOL enabled) {
  CWnd::OnEnable(enabled);
  feed([this, enabled] { behavior_.set_enabled(enabled != FALSE); });
}

void CGdiBtnEx::OnMouseMove(UINT, CPoint point) {
  if (!awaits_leave_) {
    TRACKMOUSEEVENT request{};
    request.cbSize = sizeof(request);
    request.dwFlags = TME_LEAVE;
    request.hwndTrack = m_hWnd;
    awaits_leave_ = TrackMouseEvent(&request) != FALSE;
  }
  feed([this, inside = holds(point)] { behavior_.move(inside); });
}

void CGdiBtnEx::OnMouseLeave() {
  awaits_leave_ = false;
  feed([this] { behavior_.leave(); });
}

void CGdiBtnEx::OnLButtonDown(UINT, CPoint point) {
  const WindowWatch watch(*this);
  const bool inside = holds(point);
  if (press_message_) report_press(point);
  feed([this, inside] { behavior_.press(inside); });
  if (inside && !watch.window_gone()) ::SetFocus(m_hWnd);
}

void CGdiBtnEx::report_press(CPoint point) const {
  const HWND parent = ::GetParent(m_hWnd);
  ::MapWindowPoints(m_hWnd, parent, &point, 1);
  ::PostMessageW(parent, WM_LBUTTONDOWN, MK_LBUTTON,
                 MAKELPARAM(static_cast<DWORD_PTR>(point.x), static_cast<DWORD_PTR>(point.y)));
}

void CGdiBtnEx::OnLButtonUp(UINT, CPoint point) {
  const WindowWatch watch(*this);
  bool clicked = false;
  feed([this, &clicked, inside = holds(point)] { clicked = behavior_.release(inside); });
  if (clicked && !watch.window_gone()) click();
}

// The last thing that an event does: the parent may destroy the button for an answer.
void CGdiBtnEx::click() const {
  if (!::IsWindowVisible(m_hWnd) || !::IsWindowEnabled(m_hWnd)) return;
  const auto id = static_cast<DWORD_PTR>(::GetDlgCtrlID(m_hWnd));
  ::SendMessageW(::GetParent(m_hWnd), WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(m_hWnd));
}

void CGdiBtnEx::OnCaptureChanged(CWnd* new_owner) {
  if (new_owner != nullptr && new_owner->GetSafeHwnd() == m_hWnd) return;
  feed([this] { behavior_.cancel(); });
}

void CGdiBtnEx::OnSetFocus(CWnd* old_window) {
  CWnd::OnSetFocus(old_window);
  feed([this] { behavior_.gain_focus(); });
}

void CGdiBtnEx::OnKillFocus(CWnd* new_window) {
  CWnd::OnKillFocus(new_window);
  feed([this] { behavior_.lose_focus(); });
}

void CGdiBtnEx::OnKeyDown(UINT key, UINT repeats, UINT flags) {
  if (key != VK_SPACE) return CWnd::OnKeyDown(key, repeats, flags);
  feed([this] { behavior_.space_down(); });
}

void CGdiBtnEx::OnKeyUp(UINT key, UINT repeats, UINT flags) {
  if (key != VK_SPACE) return CWnd::OnKeyUp(key, repeats, flags);
  const WindowWatch watch(*this);
  bool clicked = false;
  feed([this, &clicked] { clicked = behavior_.space_up(); });
  if (clicked && !watch.window_gone()) click();
}

UINT CGdiBtnEx::OnGetDlgCode() { return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON; }

}  // namespace corvane
