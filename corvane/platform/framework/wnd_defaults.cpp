// The handlers that a derived class's handler calls for the default handling.
#include "corvane/platform/framework/wnd.h"

namespace corvane {

int CWnd::OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }

void CWnd::OnDestroy() { Default(); }

void CWnd::OnClose() { Default(); }

void CWnd::OnPaint() { Default(); }

BOOL CWnd::OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }

void CWnd::OnSize(UINT, int, int) { Default(); }

void CWnd::OnMove(int, int) { Default(); }

void CWnd::OnShowWindow(BOOL, UINT) { Default(); }

void CWnd::OnEnable(BOOL) { Default(); }

void CWnd::OnTimer(UINT_PTR) { Default(); }

BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }

int CWnd::OnMouseActivate(CWnd*, UINT, UINT) { return static_cast<int>(Default()); }

LRESULT CWnd::OnNcHitTest(CPoint) { return Default(); }

void CWnd::OnSetFocus(CWnd*) { Default(); }

void CWnd::OnKillFocus(CWnd*) { Default(); }

void CWnd::OnActivate(UINT, CWnd*, BOOL) { Default(); }

void CWnd::OnCaptureChanged(CWnd*) { Default(); }

void CWnd::OnCancelMode() { Default(); }

void CWnd::OnKeyDown(UINT, UINT, UINT) { Default(); }

void CWnd::OnKeyUp(UINT, UINT, UINT) { Default(); }

void CWnd::OnChar(UINT, UINT, UINT) { Default(); }

UINT CWnd::OnGetDlgCode() { return static_cast<UINT>(Default()); }

void CWnd::OnSysCommand(UINT, LPARAM) { Default(); }

void CWnd::OnContextMenu(CWnd*, CPoint) { Default(); }

void CWnd::OnHScroll(UINT, UINT, CScrollBar*) { Default(); }

void CWnd::OnVScroll(UINT, UINT, CScrollBar*) { Default(); }

void CWnd::OnMouseMove(UINT, CPoint) { Default(); }

void CWnd::OnMouseLeave() { Default(); }

BOOL CWnd::OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }

void CWnd::OnLButtonDown(UINT, CPoint) { Default(); }

void CWnd::OnLButtonUp(UINT, CPoint) { Default(); }

void CWnd::OnLButtonDblClk(UINT, CPoint) { Default(); }

void CWnd::OnRButtonDown(UINT, CPoint) { Default(); }

void CWnd::OnRButtonUp(UINT, CPoint) { Default(); }

void CWnd::OnRButtonDblClk(UINT, CPoint) { Default(); }

void CWnd::OnMButtonDown(UINT, CPoint) { Default(); }

void CWnd::OnMButtonUp(UINT, CPoint) { Default(); }

void CWnd::OnMButtonDblClk(UINT, CPoint) { Default(); }

}  // namespace corvane
