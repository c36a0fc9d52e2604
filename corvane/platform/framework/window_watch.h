#pragma once
// A call out of a handler (sending, showing, moving, capturing, creating, painting) may destroy the
// handler's window or delete its object. The handler takes a watch before the call and asks it
// afterwards, before it touches a member again. A watch is a local variable; several of one object
// end in the reverse order of their beginning.
#include "corvane/platform/platform.h"

namespace corvane {

class CWnd;

class WindowWatch {
 public:
  explicit WindowWatch(const CWnd& object);
  ~WindowWatch();
  WindowWatch(const WindowWatch&) = delete;
  WindowWatch& operator=(const WindowWatch&) = delete;

  // The object was deleted.
  bool object_gone() const { return object_ == nullptr; }
  // The object was deleted, or is not (or never was) the one of the window that it had at the
  // beginning of the watch.
  bool window_gone() const;

 private:
  friend class CWnd;

  const CWnd* object_;  // null: deleted
  HWND window_;
  WindowWatch* outer_;  // the object's watch before this one
};

}  // namespace corvane
