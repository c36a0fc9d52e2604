#pragma once
// Binds an object to the window that is being created for it before the window's first message, and
// brings the messages of bound windows to their objects.
#include "corvane/platform/platform.h"

namespace corvane {

class CWnd;
struct ThreadState;

class WindowHook {
 public:
  // From now until the end of the scope, the next window that the thread creates is the object's.
  explicit WindowHook(CWnd* object);
  // When no window came to be, tells the object so (PostNcDestroy, which may delete it).
  ~WindowHook();
  WindowHook(const WindowHook&) = delete;
  WindowHook& operator=(const WindowHook&) = delete;

  // Unbinds: the window gets back the procedure of its class.
  static void release(CWnd& object);
  // WM_NCDESTROY is over: unbinds and calls PostNcDestroy. The object may be gone afterwards.
  static void finish(CWnd& object);

 private:
  static LRESULT CALLBACK on_creation(int code, WPARAM wparam, LPARAM lparam);
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  static LRESULT handle(CWnd& object, UINT message, WPARAM wparam, LPARAM lparam);
  void adopt(HWND window);
  void unhook();

  ThreadState& state_;
  WindowHook* outer_;
  CWnd* waiting_;          // null: has its window
  HWND window_ = nullptr;  // what it was bound to
  HHOOK hook_;
};

}  // namespace corvane
