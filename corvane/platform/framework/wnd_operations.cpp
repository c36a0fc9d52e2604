// The platform's operations on a window, by its object.
#include "corvane/platform/framework/font.h"
#include "corvane/platform/framework/thread_state.h"
#include "corvane/platform/framework/wnd.h"

namespace corvane {
namespace {

BOOL change_style(HWND window, int which, DWORD remove, DWORD add, UINT flags) {
  const auto old = static_cast<DWORD>(::GetWindowLongW(window, which));
  const DWORD wanted = (old & ~remove) | add;
  if (!::IsWindow(window) || old == wanted) return FALSE;
  ::SetWindowLongW(window, which, static_cast<LONG>(wanted));
  constexpr UINT kInPlace = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
  if (flags) ::SetWindowPos(window, nullptr, 0, 0, 0, 0, kInPlace | flags);
  return TRUE;
}

}  // namespace

LRESULT CWnd::SendMessageW(UINT message, WPARAM wparam, LPARAM lparam) const {
  return m_hWnd != nullptr ? ::SendMessageW(m_hWnd, message, wparam, lparam) : 0;
}

BOOL CWnd::PostMessageW(UINT message, WPARAM wparam, LPARAM lparam) const {
  // Without a window it would go to the thread.
  return m_hWnd != nullptr && (::PostMessageW(m_hWnd, message, wparam, lparam) != 0) ? TRUE : FALSE;
}

void CWnd::GetClientRect(LPRECT rect) const {
  if (rect != nullptr && !::GetClientRect(m_hWnd, rect)) *rect = RECT{};
}

void CWnd::GetWindowRect(LPRECT rect) const {
  if (rect != nullptr && !::GetWindowRect(m_hWnd, rect)) *rect = RECT{};
}

void CWnd::MoveWindow(int x, int y, int width, int height, BOOL repaint) {
  ::MoveWindow(m_hWnd, x, y, width, height, repaint);
}

void CWnd::MoveWindow(LPCRECT rect, BOOL repaint) {
  if (rect == nullptr) return;
  const CRect place(rect);
  MoveWindow(place.left, place.top, place.Width(), place.Height(), repaint);
}

BOOL CWnd::SetWindowPos(HWND insert_after, int x, int y, int width, int height, UINT flags) {
  return ::SetWindowPos(m_hWnd, insert_after, x, y, width, height, flags);
}

BOOL CWnd::BringWindowToTop() { return ::BringWindowToTop(m_hWnd); }
BOOL CWnd::ShowWindow(int command) { return ::ShowWindow(m_hWnd, command); }
BOOL CWnd::IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
BOOL CWnd::EnableWindow(BOOL enable) { return ::EnableWindow(m_hWnd, enable); }
BOOL CWnd::IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }

void CWnd::ClientToScreen(LPPOINT point) const { ::ClientToScreen(m_hWnd, point); }
void CWnd::ScreenToClient(LPPOINT point) const { ::ScreenToClient(m_hWnd, point); }

void CWnd::ClientToScreen(LPRECT rect) const {
  POINT origin{};
  if (rect != nullptr && ::ClientToScreen(m_hWnd, &origin)) *rect = CRect(*rect) + origin;
}

void CWnd::ScreenToClient(LPRECT rect) const {
  POINT origin{};
  if (rect != nullptr && ::ClientToScreen(m_hWnd, &origin)) *rect = CRect(*rect) - origin;
}

DWORD CWnd::GetStyle() const { return static_cast<DWORD>(::GetWindowLongW(m_hWnd, GWL_STYLE)); }
DWORD CWnd::GetExStyle() const { return static_cast<DWORD>(::GetWindowLongW(m_hWnd, GWL_EXSTYLE)); }

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT flags) {
  return change_style(m_hWnd, GWL_STYLE, remove, add, flags);
}

BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add, UINT flags) {
  return change_style(m_hWnd, GWL_EXSTYLE, remove, add, flags);
}

BOOL CWnd::SetLayeredWindowAttributes(COLORREF key, BYTE alpha, DWORD flags) {
  return ::SetLayeredWindowAttributes(m_hWnd, key, alpha, flags);
}

void CWnd::SetWindowTextW(LPCWSTR text) { ::SetWindowTextW(m_hWnd, text); }
int CWnd::GetWindowTextLengthW() const { return ::GetWindowTextLengthW(m_hWnd); }

void CWnd::GetWindowTextW(CString& text) const {
  const int length = GetWindowTextLengthW();
  const int copied = ::GetWindowTextW(m_hWnd, text.GetBuffer(length + 1), length + 1);
  text.ReleaseBuffer(copied);
}

void CWnd::SetFont(CFont* font, BOOL redraw) {
  const HFONT handle = font != nullptr ? static_cast<HFONT>(*font) : nullptr;
  SendMessageW(WM_SETFONT, reinterpret_cast<WPARAM>(handle), redraw);
}

CWnd* CWnd::GetParent() const { return FromHandle(::GetParent(m_hWnd)); }

CWnd* CWnd::SetParent(CWnd* parent) {
  return FromHandle(::SetParent(m_hWnd, parent != nullptr ? parent->m_hWnd : nullptr));
}

CWnd* CWnd::GetOwner() const {
  const HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
  return owner != nullptr ? FromHandle(owner) : GetParent();
}

CWnd* CWnd::GetTopLevelParent() const { return FromHandle(::GetAncestor(m_hWnd, GA_ROOTOWNER)); }
CWnd* CWnd::GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
int CWnd::GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }

BOOL CWnd::IsChild(const CWnd* window) const {
  return window != nullptr && (::IsChild(m_hWnd, window->m_hWnd) != 0) ? TRUE : FALSE;
}

// A null handle would stand for every window on the screen in the platform's painting functions.
void CWnd::Invalidate(BOOL erase) { InvalidateRect(nullptr, erase); }

void CWnd::InvalidateRect(LPCRECT rect, BOOL erase) {
  if (m_hWnd != nullptr) ::InvalidateRect(m_hWnd, rect, erase);
}

void CWnd::ValidateRect(LPCRECT rect) {
  if (m_hWnd != nullptr) ::ValidateRect(m_hWnd, rect);
}

void CWnd::UpdateWindow() { ::UpdateWindow(m_hWnd); }

BOOL CWnd::RedrawWindow(LPCRECT rect, HRGN region, UINT flags) {
  return m_hWnd != nullptr && (::RedrawWindow(m_hWnd, rect, region, flags) != 0) ? TRUE : FALSE;
}

CDC* CWnd::GetDC() const { return m_hWnd != nullptr ? CDC::FromHandle(::GetDC(m_hWnd)) : nullptr; }

int CWnd::ReleaseDC(CDC* dc) const {
  const HDC handle = dc != nullptr ? dc->GetSafeHdc() : nullptr;
  if (handle == nullptr) return 0;
  ThreadState::current().handles.release_temporary(dc);
  return ::ReleaseDC(m_hWnd, handle);
}

void CWnd::EndPaint(const PAINTSTRUCT* paint) {
  if (paint != nullptr) ::EndPaint(m_hWnd, paint);
}

CDC* CWnd::BeginPaint(LPPAINTSTRUCT paint) { return CDC::FromHandle(::BeginPaint(m_hWnd, paint)); }

// An object without a window must not take the capture or the focus from another.
CWnd* CWnd::SetCapture() { return m_hWnd != nullptr ? FromHandle(::SetCapture(m_hWnd)) : nullptr; }
CWnd* CWnd::GetCapture() { return FromHandle(::GetCapture()); }
CWnd* CWnd::SetFocus() { return m_hWnd != nullptr ? FromHandle(::SetFocus(m_hWnd)) : nullptr; }
CWnd* CWnd::GetFocus() { return FromHandle(::GetFocus()); }

UINT_PTR CWnd::SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC procedure) {
  return m_hWnd != nullptr ? ::SetTimer(m_hWnd, id, milliseconds, procedure) : 0;
}

BOOL CWnd::KillTimer(UINT_PTR id) {
  return m_hWnd != nullptr && (::KillTimer(m_hWnd, id) != 0) ? TRUE : FALSE;
}

}  // namespace corvane
