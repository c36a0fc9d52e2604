#include "corvane/platform/framework/wnd.h"

#include "corvane/platform/framework/platform_session.h"
#include "corvane/platform/framework/thread_state.h"
#include "corvane/platform/framework/win_app.h"
#include "corvane/platform/framework/window_class.h"
#include "corvane/platform/framework/window_hook.h"
#include "corvane/platform/framework/window_watch.h"

namespace corvane {

constinit const CRuntimeClass CWnd::classCWnd{"CWnd", &CObject::classCObject};

const CRuntimeClass* CWnd::GetRuntimeClass() const { return &classCWnd; }

CWnd::~CWnd() {
  end_window();
  for (WindowWatch* each = watch_; each != nullptr; each = each->outer_) each->object_ = nullptr;
}

void CWnd::end_window() {
  if (m_hWnd == nullptr || FromHandlePermanent(m_hWnd) != this) return;
  ::DestroyWindow(m_hWnd);
  // Still bound: the window is being destroyed already, or its messages never came here.
  if (m_hWnd != nullptr) WindowHook::release(*this);
}

bool CWnd::Attach(HWND window) {
  if (m_hWnd != nullptr || window == nullptr || FromHandlePermanent(window) != nullptr) {
    return false;
  }
  m_hWnd = window;
  ThreadState::current().handles.add_permanent(window, this);
  return true;
}

HWND CWnd::Detach() {
  const HWND window = m_hWnd;
  if (window != nullptr && FromHandlePermanent(window) == this) WindowHook::release(*this);
  m_hWnd = nullptr;
  return window;
}

CWnd* CWnd::FromHandle(HWND window) { return ThreadState::current().handles.object_of(window); }

CWnd* CWnd::FromHandlePermanent(HWND window) {
  return ThreadState::current().handles.permanent(window);
}

bool CWnd::Create(LPCWSTR class_name, LPCWSTR window_name, DWORD style, const RECT& rect,
                  CWnd* parent, UINT id, LPVOID parameter) {
  return CreateEx(0, class_name, window_name, style | WS_CHILD, rect, parent, id, parameter);
}

bool CWnd::CreateEx(DWORD ex_style, LPCWSTR class_name, LPCWSTR window_name, DWORD style,
                    const RECT& rect, CWnd* parent, UINT id, LPVOID parameter) {
  const CRect place(rect);
  return CreateEx(ex_style, class_name, window_name, style, place.left, place.top, place.Width(),
                  place.Height(), parent != nullptr ? parent->m_hWnd : nullptr,
                  reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), parameter);
}

bool CWnd::CreateEx(DWORD ex_style, LPCWSTR class_name, LPCWSTR window_name, DWORD style, int x,
                    int y, int width, int height, HWND parent, HMENU id_or_menu, LPVOID parameter) {
  if (m_hWnd != nullptr) return false;
  open_platform_session();
  if (class_name == nullptr) {
    class_name = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                     static_cast<HBRUSH>(::GetStockObject(NULL_BRUSH)));
  }
  const WindowHook hook(this);
  // The object may be gone when the call returns.
  return ::CreateWindowExW(ex_style, class_name, window_name, style, x, y, width, height, parent,
                           id_or_menu, AfxGetInstanceHandle(), parameter) != nullptr;
}

BOOL CWnd::DestroyWindow() { return ::DestroyWindow(m_hWnd); }

const MessageMap* CWnd::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(On<WM_NCDESTROY>(&CWnd::OnNcDestroy));
  static const MessageMap map = kMessages.extending(nullptr);
  return &map;
}

BOOL CWnd::PreTranslateMessage(MSG*) { return FALSE; }

LRESULT CWnd::WindowProc(UINT message, WPARAM wparam, LPARAM lparam) {
  const WindowWatch watch(*this);
  LRESULT result = 0;
  ThreadState::current().default_done = false;
  if (OnWndMsg(message, wparam, lparam, &result)) return result;
  // A handler that leaves the message to the default handling may have called it already.
  if (watch.window_gone() || ThreadState::current().default_done) return result;
  return DefWindowProcW(message, wparam, lparam);
}

bool CWnd::OnWndMsg(UINT message, WPARAM wparam, LPARAM lparam, LRESULT* result) {
  const WindowWatch watch(*this);
  if (message == WM_COMMAND && OnCommand(wparam, lparam)) {
    *result = 1;
    return true;
  }
  if (message == WM_NOTIFY && OnNotify(wparam, lparam, result)) return true;
  if (watch.window_gone()) return true;
  const MessageMatch match = GetMessageMap()->find(message);
  return match && match.call(*this, wparam, lparam, *result);
}

BOOL CWnd::OnCommand(WPARAM wparam, LPARAM lparam) {
  const WindowWatch watch(*this);
  CWnd* control = FromHandlePermanent(reinterpret_cast<HWND>(lparam));
  LRESULT ignored = 0;
  if (control != nullptr && control->OnChildNotify(WM_COMMAND, wparam, lparam, &ignored)) {
    return TRUE;
  }
  if (watch.window_gone()) return TRUE;
  const UINT code = lparam ? HIWORD(wparam) : 0;
  const MessageMatch match = GetMessageMap()->find_command(LOWORD(wparam), code);
  return match && match.call(*this, wparam, lparam, ignored) ? TRUE : FALSE;
}

BOOL CWnd::OnNotify(WPARAM wparam, LPARAM lparam, LRESULT* result) {
  const auto* header = reinterpret_cast<const NMHDR*>(lparam);
  CWnd* control = header != nullptr ? FromHandlePermanent(header->hwndFrom) : nullptr;
  return control != nullptr && (control->OnChildNotify(WM_NOTIFY, wparam, lparam, result) != 0)
             ? TRUE
             : FALSE;
}

BOOL CWnd::OnChildNotify(UINT, WPARAM, LPARAM, LRESULT*) { return FALSE; }

LRESULT CWnd::DefWindowProcW(UINT message, WPARAM wparam, LPARAM lparam) {
  if (super_procedure_ != nullptr) {
    return ::CallWindowProcW(super_procedure_, m_hWnd, message, wparam, lparam);
  }
  return ::DefWindowProcW(m_hWnd, message, wparam, lparam);
}

LRESULT CWnd::Default() {
  const MSG* current = GetCurrentMessage();
  // A handler that was called from outside its window's messages has none to pass on.
  if (current == nullptr || current->hwnd != m_hWnd) return 0;
  ThreadState::current().default_done = true;
  return DefWindowProcW(current->message, current->wParam, current->lParam);
}

const MSG* CWnd::GetCurrentMessage() const { return ThreadState::current().message; }

void CWnd::OnNcDestroy() {
  const WindowWatch watch(*this);
  Default();
  if (!watch.window_gone()) WindowHook::finish(*this);
}

}  // namespace corvane
