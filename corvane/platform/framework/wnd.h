#pragma once
// A window and its handlers. An object stands for one window at a time; the window is destroyed
// with the object, the object lives on when its window is destroyed (unless PostNcDestroy deletes
// it). Any handler may destroy the window or delete the object: nothing of it is touched
// afterwards. Operations on an object without a window fail as the platform's do for a stale
// handle. Everything belongs to the user-interface thread.
#include "corvane/platform/framework/c_string.h"
#include "corvane/platform/framework/message_map.h"
#include "corvane/platform/framework/object.h"
#include "corvane/platform/framework/rect.h"
#include "corvane/platform/platform.h"

namespace corvane {

class CFont;
class WindowWatch;

class CWnd : public CObject {
 public:
  CWnd() = default;
  // Destroys the window, if there is one. By then only CWnd's own handlers are left: a class whose
  // OnDestroy matters calls DestroyWindow in its own destructor.
  ~CWnd() override;

  static const CRuntimeClass classCWnd;
  const CRuntimeClass* GetRuntimeClass() const override;

  // --- Handle
  HWND GetSafeHwnd() const { return m_hWnd; }
  operator HWND() const { return m_hWnd; }
  // Binds the object to an existing window without changing the window's procedure, so its messages
  // do not come here. False when the object has a window, the handle is null or has an object.
  bool Attach(HWND window);
  HWND Detach();  // the window lives on without an object
  // The window's object, or else a temporary one, which lives until the message loop's next turn
  // (at least through the current handler); null for a null handle. The caller owns neither.
  static CWnd* FromHandle(HWND window);
  static CWnd* FromHandlePermanent(HWND window);  // null: the window has no object of its own

  // --- Creation and end. A null class name stands for a class with double clicks, the arrow and no
  // background. Positions are screen coordinates, of a child the parent's client coordinates.
  // WM_NCCREATE and all later messages reach the object's handlers. An exception thrown by the
  // handler of WM_NCCREATE or WM_CREATE makes the creation fail. False: no window was made
  // (then PostNcDestroy has been called, and may have deleted the object), or the object has one
  // already.
  bool Create(LPCWSTR class_name, LPCWSTR window_name, DWORD style, const RECT& rect, CWnd* parent,
              UINT id, LPVOID parameter = nullptr);
  bool CreateEx(DWORD ex_style, LPCWSTR class_name, LPCWSTR window_name, DWORD style,
                const RECT& rect, CWnd* parent, UINT id, LPVOID parameter = nullptr);
  bool CreateEx(DWORD ex_style, LPCWSTR class_name, LPCWSTR window_name, DWORD style, int x, int y,
                int width, int height, HWND parent, HMENU id_or_menu, LPVOID parameter = nullptr);
  BOOL DestroyWindow();

  // --- Messages
  LRESULT SendMessageW(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const;
  BOOL PostMessageW(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const;
  // Sees every message of the loop for this window or a child of it before it is dispatched;
  // non-zero swallows it.
  virtual BOOL PreTranslateMessage(MSG* message);
  virtual const MessageMap* GetMessageMap() const;

  // --- Place, state, text
  void GetClientRect(LPRECT rect) const;
  void GetWindowRect(LPRECT rect) const;  // screen coordinates
  void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
  void MoveWindow(LPCRECT rect, BOOL repaint = TRUE);
  BOOL SetWindowPos(HWND insert_after, int x, int y, int width, int height, UINT flags);
  BOOL BringWindowToTop();
  BOOL ShowWindow(int command);  // whether the window was visible before
  BOOL IsWindowVisible() const;
  BOOL EnableWindow(BOOL enable = TRUE);  // whether the window was disabled before
  BOOL IsWindowEnabled() const;
  void ClientToScreen(LPPOINT point) const;
  void ClientToScreen(LPRECT rect) const;
  void ScreenToClient(LPPOINT point) const;
  void ScreenToClient(LPRECT rect) const;
  DWORD GetStyle() const;
  DWORD GetExStyle() const;
  // Non-zero `flags` call SetWindowPos with them (without moving or sizing). False: the style had
  // that value already.
  BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0);
  BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT flags = 0);
  BOOL SetLayeredWindowAttributes(COLORREF key, BYTE alpha, DWORD flags);
  void SetWindowTextW(LPCWSTR text);
  void GetWindowTextW(CString& text) const;
  int GetWindowTextLengthW() const;
  void SetFont(CFont* font, BOOL redraw = TRUE);  // borrowed, must outlive its use

  // --- Relations. The results are as FromHandle gives them.
  CWnd* GetParent() const;  // a pop-up's owner
  CWnd* SetParent(CWnd* parent);
  CWnd* GetOwner() const;
  CWnd* GetTopLevelParent() const;  // the outermost window over parents and owners
  CWnd* GetDlgItem(int id) const;
  int GetDlgCtrlID() const;
  BOOL IsChild(const CWnd* window) const;

  // --- Painting
  void Invalidate(BOOL erase = TRUE);
  void InvalidateRect(LPCRECT rect, BOOL erase = TRUE);
  void ValidateRect(LPCRECT rect);
  void UpdateWindow();
  BOOL RedrawWindow(LPCRECT rect = nullptr, HRGN region = nullptr,
                    UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
  CDC* GetDC() const;  // temporary; ended by ReleaseDC
  int ReleaseDC(CDC* dc) const;
  CDC* BeginPaint(LPPAINTSTRUCT paint);  // temporary; ended by EndPaint
  void EndPaint(const PAINTSTRUCT* paint);

  // --- Standard scroll bars (SB_VERT, SB_HORZ)
  // The structure's size is filled in here. False: no window, or no such bar.
  BOOL SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw = TRUE);
  BOOL GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask = SIF_ALL) const;
  int SetScrollPos(int bar, int position, BOOL redraw = TRUE);  // the previous position
  int GetScrollPos(int bar) const;
  void SetScrollRange(int bar, int minimum, int maximum, BOOL redraw = TRUE);
  void GetScrollRange(int bar, int* minimum, int* maximum) const;  // 0 and 0 without a bar
  int GetScrollLimit(int bar) const;               // the last position that shows a full page
  void ShowScrollBar(UINT bar, BOOL show = TRUE);  // also SB_BOTH

  // --- Input and timers
  CWnd* SetCapture();
  static CWnd* GetCapture();
  CWnd* SetFocus();
  static CWnd* GetFocus();
  UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC procedure = nullptr);
  BOOL KillTimer(UINT_PTR id);

  HWND m_hWnd = nullptr;

 protected:
  // The first to see a message. The base calls the virtual OnCommand and OnNotify for WM_COMMAND
  // and WM_NOTIFY, then the message map's handler, else DefWindowProcW.
  virtual LRESULT WindowProc(UINT message, WPARAM wparam, LPARAM lparam);
  // The procedure that the window's class had before the object took it over.
  virtual LRESULT DefWindowProcW(UINT message, WPARAM wparam, LPARAM lparam);
  // Default handling of the message that is being handled, with its parameters as they came. 0 and
  // nothing happens when that is another window's message.
  LRESULT Default();
  const MSG* GetCurrentMessage() const;  // the message being handled on this thread

  // Non-zero: handled. The base asks the map's OnCommandId rows and the control's OnChildNotify.
  virtual BOOL OnCommand(WPARAM wparam, LPARAM lparam);
  virtual BOOL OnNotify(WPARAM wparam, LPARAM lparam, LRESULT* result);
  // A control's own view of the WM_COMMAND or WM_NOTIFY that it sent to its parent.
  virtual BOOL OnChildNotify(UINT message, WPARAM wparam, LPARAM lparam, LRESULT* result);
  // The last call for a window; the object is detached. May delete the object.
  virtual void PostNcDestroy() {}

  // Default handling, for a handler of the same name in a derived class to call.
  int OnCreate(LPCREATESTRUCT creation);
  void OnDestroy();
  void OnNcDestroy();
  void OnClose();
  void OnPaint();
  BOOL OnEraseBkgnd(CDC* dc);
  void OnSize(UINT kind, int width, int height);
  void OnMove(int x, int y);
  void OnShowWindow(BOOL shown, UINT reason);
  void OnEnable(BOOL enabled);
  void OnTimer(UINT_PTR id);
  BOOL OnSetCursor(CWnd* window, UINT hit_code, UINT mouse_message);
  int OnMouseActivate(CWnd* top_level, UINT hit_code, UINT mouse_message);
  LRESULT OnNcHitTest(CPoint screen_point);
  void OnSetFocus(CWnd* old_window);
  void OnKillFocus(CWnd* new_window);
  void OnActivate(UINT state, CWnd* other, BOOL minimized);
  void OnCaptureChanged(CWnd* new_owner);
  void OnCancelMode();
  void OnKeyDown(UINT key, UINT repeats, UINT flags);
  void OnKeyUp(UINT key, UINT repeats, UINT flags);
  void OnChar(UINT character, UINT repeats, UINT flags);
  UINT OnGetDlgCode();
  void OnSysCommand(UINT command, LPARAM lparam);
  void OnContextMenu(CWnd* window, CPoint screen_point);
  void OnHScroll(UINT code, UINT position, CScrollBar* bar);
  void OnVScroll(UINT code, UINT position, CScrollBar* bar);
  void OnMouseMove(UINT flags, CPoint point);
  void OnMouseLeave();
  BOOL OnMouseWheel(UINT flags, short distance, CPoint screen_point);
  void OnLButtonDown(UINT flags, CPoint point);
  void OnLButtonUp(UINT flags, CPoint point);
  void OnLButtonDblClk(UINT flags, CPoint point);
  void OnRButtonDown(UINT flags, CPoint point);
  void OnRButtonUp(UINT flags, CPoint point);
  void OnRButtonDblClk(UINT flags, CPoint point);
  void OnMButtonDown(UINT flags, CPoint point);
  void OnMButtonUp(UINT flags, CPoint point);
  void OnMButtonDblClk(UINT flags, CPoint point);

 private:
  friend class WindowHook;
  friend class WindowWatch;

  bool OnWndMsg(UINT message, WPARAM wparam, LPARAM lparam, LRESULT* result);

  void end_window();

  WNDPROC super_procedure_ = nullptr;     // null: the platform's default procedure
  mutable WindowWatch* watch_ = nullptr;  // the latest of those that look at the object
};

}  // namespace corvane
