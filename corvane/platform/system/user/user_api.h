#pragma once
// Windows, messages, input, painting and timers under the platform's names. Every function acts on
// the calling thread's current window system; PostMessageW alone may be called from any thread.
// A stale or made-up handle makes a call fail (0 or null) and sets error 1400.
#include "corvane/platform/system/gdi/gdi_api.h"
#include "corvane/platform/system/types.h"

namespace corvane_system {

struct MSG {
  HWND hwnd;
  UINT message;
  WPARAM wParam;
  LPARAM lParam;
  DWORD time;  // milliseconds
  POINT pt;    // pointer position, screen coordinates
};
using LPMSG = MSG*;

struct CREATESTRUCTW {
  LPVOID lpCreateParams;
  HINSTANCE hInstance;
  HMENU hMenu;
  HWND hwndParent;
  int cy;
  int cx;
  int y;
  int x;
  LONG style;
  LPCWSTR lpszName;
  LPCWSTR lpszClass;
  DWORD dwExStyle;
};
using CREATESTRUCT = CREATESTRUCTW;
using LPCREATESTRUCTW = CREATESTRUCTW*;
using LPCREATESTRUCT = CREATESTRUCTW*;
struct CBT_CREATEWNDW {
  CREATESTRUCTW* lpcs;
  HWND hwndInsertAfter;
};

struct WNDCLASSW {
  UINT style;
  WNDPROC lpfnWndProc;
  int cbClsExtra;
  int cbWndExtra;
  HINSTANCE hInstance;
  HICON hIcon;
  HCURSOR hCursor;
  HBRUSH hbrBackground;
  LPCWSTR lpszMenuName;
  LPCWSTR lpszClassName;
};
struct PAINTSTRUCT {
  HDC hdc;
  BOOL fErase;
  RECT rcPaint;  // bounding box of the update region, client coordinates
  BOOL fRestore;
  BOOL fIncUpdate;
  BYTE rgbReserved[32];
};
using LPPAINTSTRUCT = PAINTSTRUCT*;
struct WINDOWPOS {
  HWND hwnd;
  HWND hwndInsertAfter;
  int x;
  int y;
  int cx;
  int cy;
  UINT flags;
};
struct NCCALCSIZE_PARAMS {
  RECT rgrc[3];
  WINDOWPOS* lppos;
};
struct MINMAXINFO {
  POINT ptReserved;
  POINT ptMaxSize;
  POINT ptMaxPosition;
  POINT ptMinTrackSize;
  POINT ptMaxTrackSize;
};
struct STYLESTRUCT {
  DWORD styleOld;
  DWORD styleNew;
};
struct NMHDR {
  HWND hwndFrom;
  UINT_PTR idFrom;
  UINT code;
};
struct SCROLLINFO {
  UINT cbSize;
  UINT fMask;  // SIF_*: the members meant
  int nMin;
  int nMax;
  UINT nPage;     // how much of the range is seen at once; 0: not said
  int nPos;       // from nMin to nMax - (nPage - 1)
  int nTrackPos;  // of a thumb that the user holds, otherwise nPos
};
using LPSCROLLINFO = SCROLLINFO*;
using LPCSCROLLINFO = const SCROLLINFO*;
struct SCROLLBARINFO {
  DWORD cbSize;
  RECT rcScrollBar;   // screen coordinates
  int dxyLineButton;  // length of an arrow, pixels
  int xyThumbTop;     // along the bar
  int xyThumbBottom;
  int reserved;
  // STATE_SYSTEM_*: the bar; arrow, trough, thumb, trough, arrow from its upper or left end
  DWORD rgstate[6];
};
struct CURSORINFO {
  DWORD cbSize;
  DWORD flags;  // CURSOR_SHOWING
  HCURSOR hCursor;
  POINT ptScreenPos;
};
struct MONITORINFO {
  DWORD cbSize;
  RECT rcMonitor;
  RECT rcWork;
  DWORD dwFlags;
};
using LPMONITORINFO = MONITORINFO*;
struct TRACKMOUSEEVENT {
  DWORD cbSize;
  DWORD dwFlags;
  HWND hwndTrack;
  DWORD dwHoverTime;
};
struct MOUSEINPUT {
  LONG dx;
  LONG dy;
  DWORD mouseData;
  DWORD dwFlags;
  DWORD time;
  ULONG_PTR dwExtraInfo;
};
struct KEYBDINPUT {
  WORD wVk;
  WORD wScan;
  DWORD dwFlags;
  DWORD time;
  ULONG_PTR dwExtraInfo;
};
struct INPUT {
  DWORD type;
  union {
    MOUSEINPUT mi;
    KEYBDINPUT ki;
  };
};
using LPINPUT = INPUT*;

// --- Window classes and windows
ATOM RegisterClassW(const WNDCLASSW* window_class);
BOOL UnregisterClassW(LPCWSTR name, HINSTANCE instance);
BOOL GetClassInfoW(HINSTANCE instance, LPCWSTR name, WNDCLASSW* out);
int GetClassNameW(HWND window, LPWSTR buffer, int size);
HWND CreateWindowExW(DWORD ex_style, LPCWSTR class_name, LPCWSTR window_name, DWORD style, int x,
                     int y, int width, int height, HWND parent, HMENU menu_or_id,
                     HINSTANCE instance, LPVOID parameter);
BOOL DestroyWindow(HWND window);
BOOL IsWindow(HWND window);
BOOL IsWindowVisible(HWND window);
BOOL IsWindowEnabled(HWND window);
BOOL IsChild(HWND parent, HWND window);
BOOL ShowWindow(HWND window, int command);
BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
BOOL SetWindowPos(HWND window, HWND insert_after, int x, int y, int width, int height, UINT flags);
BOOL BringWindowToTop(HWND window);
BOOL EnableWindow(HWND window, BOOL enable);
BOOL IsZoomed(HWND window);                    // maximized
BOOL IsIconic(HWND window);                    // minimized
BOOL GetWindowRect(HWND window, LPRECT rect);  // screen coordinates
BOOL GetClientRect(HWND window, LPRECT rect);  // (0, 0, width, height)
// From a client area to the window around it; scroll bars are not counted, a menu is never there.
BOOL AdjustWindowRect(LPRECT rect, DWORD style, BOOL menu);
BOOL AdjustWindowRectEx(LPRECT rect, DWORD style, BOOL menu, DWORD ex_style);
BOOL ClientToScreen(HWND window, LPPOINT point);
BOOL ScreenToClient(HWND window, LPPOINT point);
int MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count);
HWND GetParent(HWND window);  // a child's parent, a pop-up's owner
HWND SetParent(HWND window, HWND parent);
HWND GetAncestor(HWND window, UINT kind);
HWND GetWindow(HWND window, UINT relation);
HWND GetTopWindow(HWND window);
HWND GetDesktopWindow();
HWND GetDlgItem(HWND window, int id);
int GetDlgCtrlID(HWND window);
BOOL EnumChildWindows(HWND window, WNDENUMPROC callback, LPARAM parameter);
BOOL SetWindowTextW(HWND window, LPCWSTR text);
int GetWindowTextW(HWND window, LPWSTR buffer, int size);
int GetWindowTextLengthW(HWND window);
LONG GetWindowLongW(HWND window, int index);
LONG SetWindowLongW(HWND window, int index, LONG value);
LONG_PTR GetWindowLongPtrW(HWND window, int index);
LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value);
ULONG_PTR GetClassLongPtrW(HWND window, int index);
HWND WindowFromPoint(POINT screen_point);
HWND ChildWindowFromPoint(HWND parent, POINT client_point);
HWND FindWindowW(LPCWSTR class_name, LPCWSTR text);  // top-level; null: any
BOOL EnumWindows(WNDENUMPROC callback, LPARAM parameter);
// Values under names of the program's own, which end with the window.
BOOL SetPropW(HWND window, LPCWSTR name, HANDLE value);
HANDLE GetPropW(HWND window, LPCWSTR name);     // null: there is none
HANDLE RemovePropW(HWND window, LPCWSTR name);  // returns what it was
DWORD GetWindowThreadProcessId(HWND window, DWORD* process);

// --- Messages
LRESULT SendMessageW(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
BOOL PostMessageW(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
void PostQuitMessage(int exit_code);
BOOL GetMessageW(LPMSG message, HWND window, UINT first, UINT last);
BOOL PeekMessageW(LPMSG message, HWND window, UINT first, UINT last, UINT remove);
BOOL TranslateMessage(const MSG* message);
LRESULT DispatchMessageW(const MSG* message);
BOOL WaitMessage();
LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
LRESULT CallWindowProcW(WNDPROC procedure, HWND window, UINT message, WPARAM wparam, LPARAM lparam);
DWORD GetMessagePos();  // pointer at the message last retrieved, screen coordinates
LONG GetMessageTime();  // and its time, milliseconds
UINT RegisterWindowMessageW(LPCWSTR name);
HHOOK SetWindowsHookExW(int kind, HOOKPROC procedure, HINSTANCE instance, DWORD thread);
BOOL UnhookWindowsHookEx(HHOOK hook);
LRESULT CallNextHookEx(HHOOK hook, int code, WPARAM wparam, LPARAM lparam);

// --- Controls of a window, by id, and keys among them
// Works the keys of a window with controls: Tab and Shift+Tab go to the next WS_TABSTOP control,
// arrows move inside a WS_GROUP, Enter presses the default button (or gives IDOK), Escape gives
// IDCANCEL, Alt and a letter choose the control whose text has it behind an &. Messages for the
// dialog and its children are dispatched too; non-zero: the message is done with.
BOOL IsDialogMessageW(HWND dialog, LPMSG message);
// In the order of creation; skips what is hidden or disabled. Null as control: from the beginning.
HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous);
HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous);
LRESULT SendDlgItemMessageW(HWND dialog, int id, UINT message, WPARAM wparam, LPARAM lparam);
BOOL SetDlgItemTextW(HWND dialog, int id, LPCWSTR text);
UINT GetDlgItemTextW(HWND dialog, int id, LPWSTR buffer, int size);  // length copied
BOOL CheckDlgButton(HWND dialog, int id, UINT check);                // BST_*
UINT IsDlgButtonChecked(HWND dialog, int id);
BOOL CheckRadioButton(HWND dialog, int first, int last, int checked);

// --- Timers; periods in milliseconds, below 10 they act as 10
UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT period, TIMERPROC procedure);
BOOL KillTimer(HWND window, UINT_PTR id);
DWORD GetTickCount();

// --- Painting
HDC BeginPaint(HWND window, LPPAINTSTRUCT paint);
BOOL EndPaint(HWND window, const PAINTSTRUCT* paint);
HDC GetDC(HWND window);  // null: the screen
HDC GetWindowDC(HWND window);
int ReleaseDC(HWND window, HDC dc);
BOOL InvalidateRect(HWND window, const RECT* rect, BOOL erase);
BOOL ValidateRect(HWND window, const RECT* rect);
BOOL RedrawWindow(HWND window, const RECT* rect, HRGN region, UINT flags);
BOOL UpdateWindow(HWND window);
BOOL GetUpdateRect(HWND window, LPRECT rect, BOOL erase);

// --- Scroll bars: a window's standard ones (SB_VERT, SB_HORZ), or the window is one (SB_CTL: the
// SBM_ messages are sent to it). Range and page decide whether the bar
// is there: it goes, and the client area grows, when there is nowhere to scroll to, and comes back
// when there is, unless SIF_DISABLENOSCROLL keeps it greyed.
int SetScrollInfo(HWND window, int bar, LPCSCROLLINFO info, BOOL redraw);  // resulting position
BOOL GetScrollInfo(HWND window, int bar, LPSCROLLINFO info);               // fills what fMask names
int SetScrollPos(HWND window, int bar, int position, BOOL redraw);         // previous position
int GetScrollPos(HWND window, int bar);
BOOL SetScrollRange(HWND window, int bar, int minimum, int maximum, BOOL redraw);
BOOL GetScrollRange(HWND window, int bar, int* minimum, int* maximum);
BOOL ShowScrollBar(HWND window, int bar, BOOL show);  // also SB_BOTH
// OBJID_VSCROLL, OBJID_HSCROLL. Fails with ERROR_NO_SCROLLBARS for a window that never had it.
BOOL GetScrollBarInfo(HWND window, LONG object, SCROLLBARINFO* info);

// --- Layered windows
BOOL SetLayeredWindowAttributes(HWND window, COLORREF key, BYTE alpha, DWORD flags);
BOOL GetLayeredWindowAttributes(HWND window, COLORREF* key, BYTE* alpha, DWORD* flags);
BOOL UpdateLayeredWindow(HWND window, HDC target, POINT* position, SIZE* size, HDC source,
                         POINT* source_point, COLORREF key, BLENDFUNCTION* blend, DWORD flags);

// --- Input
HWND SetCapture(HWND window);
BOOL ReleaseCapture();
HWND GetCapture();
HWND SetFocus(HWND window);
HWND GetFocus();
HWND SetActiveWindow(HWND window);
HWND GetActiveWindow();
BOOL SetForegroundWindow(HWND window);
HWND GetForegroundWindow();
BOOL SetCursorPos(int x, int y);
BOOL GetCursorPos(LPPOINT point);
UINT SendInput(UINT count, LPINPUT inputs, int size);
SHORT GetKeyState(int virtual_key);       // as of the message last retrieved; bit 0: toggled
BOOL GetKeyboardState(BYTE* keys);        // the same of all 256 keys, as 0x80 and 0x01
SHORT GetAsyncKeyState(int virtual_key);  // now
UINT GetDoubleClickTime();                // milliseconds
BOOL TrackMouseEvent(TRACKMOUSEEVENT* request);
// Whether it gets WM_DROPFILES for what is dropped on it and its children (WS_EX_ACCEPTFILES).
void DragAcceptFiles(HWND window, BOOL accept);
HCURSOR LoadCursorW(HINSTANCE instance, LPCWSTR name);
// .cur and .ani files, of whose pictures the ones nearest to 32 pixels are taken as they are. The
// caller destroys it. Null with ERROR_FILE_NOT_FOUND and the like, or ERROR_INVALID_DATA for a file
// that is no cursor or damaged.
HCURSOR LoadCursorFromFileW(LPCWSTR path);
// Cursors alone (IMAGE_CURSOR): of a file with LR_LOADFROMFILE, nearest to `width` (0: 32 pixels),
// else as LoadCursorW.
HANDLE LoadImageW(HINSTANCE instance, LPCWSTR name, UINT kind, int width, int height, UINT flags);
HCURSOR SetCursor(HCURSOR cursor);  // returns the previous one
HCURSOR GetCursor();
BOOL GetCursorInfo(CURSORINFO* info);
BOOL DestroyCursor(HCURSOR cursor);  // one that is shown is shown no more

// --- The system
BOOL SystemParametersInfoW(UINT action, UINT parameter, void* data, UINT flags);
int GetSystemMetrics(int index);
int GetDeviceCaps(HDC dc, int index);  // of the screen, whatever the context is for
// There is one monitor. rcMonitor is what a window covers to fill it: while none does, it can be
// larger than the screen, which is then the work area.
HMONITOR MonitorFromWindow(HWND window, DWORD flags);
BOOL GetMonitorInfoW(HMONITOR monitor, MONITORINFO* info);
HMODULE GetModuleHandleW(LPCWSTR name);
DWORD GetCurrentThreadId();

}  // namespace corvane_system
