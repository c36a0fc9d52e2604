// The standard scroll bars of a window, by its object.
#include "corvane/platform/framework/wnd.h"

namespace corvane {

BOOL CWnd::SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw) {
  if (info == nullptr || !::IsWindow(m_hWnd)) return FALSE;
  info->cbSize = sizeof(SCROLLINFO);
  ::SetScrollInfo(m_hWnd, bar, info, redraw);
  return TRUE;
}

BOOL CWnd::GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask) const {
  if (info == nullptr) return FALSE;
  info->cbSize = sizeof(SCROLLINFO);
  info->fMask = mask;
  return ::GetScrollInfo(m_hWnd, bar, info);
}

int CWnd::SetScrollPos(int bar, int position, BOOL redraw) {
  return ::SetScrollPos(m_hWnd, bar, position, redraw);
}

int CWnd::GetScrollPos(int bar) const { return ::GetScrollPos(m_hWnd, bar); }

void CWnd::SetScrollRange(int bar, int minimum, int maximum, BOOL redraw) {
  ::SetScrollRange(m_hWnd, bar, minimum, maximum, redraw);
}

void CWnd::GetScrollRange(int bar, int* minimum, int* maximum) const {
  int first = 0;
  int last = 0;
  ::GetScrollRange(m_hWnd, bar, &first, &last);
  if (minimum != nullptr) *minimum = first;
  if (maximum != nullptr) *maximum = last;
}

int CWnd::GetScrollLimit(int bar) const {
  SCROLLINFO info{};
  if (!GetScrollInfo(bar, &info, SIF_RANGE | SIF_PAGE)) return 0;
  if (info.nPage < 1) return info.nMax;
  // A page can be longer than the largest position.
  return static_cast<int>(static_cast<long long>(info.nMax) - info.nPage + 1);
}

void CWnd::ShowScrollBar(UINT bar, BOOL show) {
  ::ShowScrollBar(m_hWnd, static_cast<int>(bar), show);
}

}  // namespace corvane
