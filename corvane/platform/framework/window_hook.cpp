#include "corvane/platform/framework/window_hook.h"

#include <exception>
#include <utility>

#include "corvane/platform/framework/thread_state.h"
#include "corvane/platform/framework/win_app.h"
#include "corvane/platform/framework/window_watch.h"
#include "corvane/platform/framework/wnd.h"

namespace corvane {

WindowHook::WindowHook(CWnd* object)
    : state_(ThreadState::current()),
      outer_(state_.creation),
      waiting_(object),
      hook_(::SetWindowsHookExW(WH_CBT, &on_creation, nullptr, ::GetCurrentThreadId())) {
  state_.creation = this;
}

WindowHook::~WindowHook() {
  unhook();
  state_.creation = outer_;
  if (waiting_ != nullptr) {
    waiting_->PostNcDestroy();
    return;
  }
  // The window ended without its last message.
  CWnd* object = state_.handles.permanent(window_);
  if (object != nullptr && !::IsWindow(window_)) finish(*object);
}

void WindowHook::unhook() {
  if (const HHOOK hook = std::exchange(hook_, nullptr)) ::UnhookWindowsHookEx(hook);
}

LRESULT CALLBACK WindowHook::on_creation(int code, WPARAM wparam, LPARAM lparam) {
  WindowHook* innermost = ThreadState::current().creation;
  if (innermost == nullptr) return 0;
  const LRESULT refused = ::CallNextHookEx(innermost->hook_, code, wparam, lparam);
  if (code == HCBT_CREATEWND && innermost->waiting_ != nullptr && !refused) {
    innermost->adopt(reinterpret_cast<HWND>(wparam));
  }
  return refused;
}

void WindowHook::adopt(HWND window) {
  // Before any handler can create another window: the thread has one such hook at a time.
  unhook();
  CWnd& object = *std::exchange(waiting_, nullptr);
  window_ = window;
  object.m_hWnd = window;
  state_.handles.add_permanent(window, &object);
  const auto replaced = reinterpret_cast<WNDPROC>(
      ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure)));
  object.super_procedure_ = replaced == &procedure ? nullptr : replaced;
}

// An exception may not cross the platform's creation: it makes the creation fail.
LRESULT WindowHook::handle(CWnd& object, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message != WM_CREATE && message != WM_NCCREATE) {
    return object.WindowProc(message, wparam, lparam);
  }
  try {
    return object.WindowProc(message, wparam, lparam);
  } catch (const std::exception&) {
    return message == WM_CREATE ? -1 : 0;
  }
}

LRESULT CALLBACK WindowHook::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  ThreadState& state = ThreadState::current();
  CWnd* object = state.handles.permanent(window);
  if (object == nullptr) return ::DefWindowProcW(window, message, wparam, lparam);
  const MSG current{window, message, wparam, lparam, 0, {}};
  const MessageScope scope(state, current);
  const WindowWatch watch(*object);
  const LRESULT result = handle(*object, message, wparam, lparam);
  // A handler of WM_NCDESTROY may have left out the base's.
  if (message == WM_NCDESTROY && !watch.window_gone()) finish(*object);
  return result;
}

void WindowHook::release(CWnd& object) {
  const HWND window = std::exchange(object.m_hWnd, nullptr);
  const WNDPROC original = std::exchange(object.super_procedure_, nullptr);
  ThreadState::current().handles.remove_permanent(window);
  const auto present = reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(window, GWLP_WNDPROC));
  if (original != nullptr && present == &procedure) {
    ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original));
  }
}

void WindowHook::finish(CWnd& object) {
  CWinApp* app = AfxGetApp();
  if (app != nullptr && app->m_pMainWnd == &object) {
    app->m_pMainWnd = nullptr;
    ::PostQuitMessage(0);
  }
  release(object);
  object.PostNcDestroy();
}

}  // namespace corvane
