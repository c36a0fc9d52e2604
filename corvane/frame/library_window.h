#pragma once
// What every window class of the library shares. A class derives from LibraryWindow, describes
// itself once (run-time class, messages, keys), and ends its members with a WindowEnd:
//
//   class CNoteLayer : public LibraryWindow<CWnd> {
//    public:
//     CNoteLayer() : LibraryWindow(this, end_) {}
//     static const CRuntimeClass classCNoteLayer;
//     int OnCreate(LPCREATESTRUCT creation);
//
//    private:
//     const WindowDescription& description() const override;
//     ...
//     WindowEnd end_{*this};  // last
//   };
#include <cassert>
#include <cstdint>
#include <optional>

#include "corvane/frame/key_filter.h"
#include "corvane/frame/layer_key_filter.h"
#include "corvane/platform/framework/window_watch.h"
#include "corvane/platform/framework/wnd.h"

namespace corvane {

// A constant of the class.
struct WindowDescription {
  const CRuntimeClass& runtime_class;
  MessageMap messages;
  std::optional<KeyFilter> keys;  // none: the window filters nothing
};

// Ends the window of the object whose last member it is, while the others are still there and the
// object's own handlers (OnDestroy above all) still run. A class derived by a host that wants its
// own OnDestroy at the end of the object calls DestroyWindow in its destructor.
class WindowEnd {
 public:
  explicit WindowEnd(CWnd& window) : window_(window) {}
  ~WindowEnd() {
    window_.DestroyWindow();
    // A window that is being destroyed already still has messages to come.
    window_.Detach();
  }
  WindowEnd(const WindowEnd&) = delete;
  WindowEnd& operator=(const WindowEnd&) = delete;

 private:
  CWnd& window_;
};

template <class Base>
class LibraryWindow : public Base {
 public:
  const CRuntimeClass* GetRuntimeClass() const override { return &description().runtime_class; }
  const MessageMap* GetMessageMap() const override { return &description().messages; }
  BOOL PreTranslateMessage(MSG* message) override {
    const std::optional<KeyFilter>& keys = description().keys;
    if (keys && filter_layer_key(*keys, this->m_hWnd, message)) return TRUE;
    return Base::PreTranslateMessage(message);
  }

 protected:
  // `end` is the last member of `self`, the object under construction.
  template <class Window>
  LibraryWindow([[maybe_unused]] const Window* self, [[maybe_unused]] const WindowEnd& end) {
    static_assert(alignof(Window) == alignof(WindowEnd));
    assert(reinterpret_cast<std::uintptr_t>(&end) + sizeof(end) ==
           reinterpret_cast<std::uintptr_t>(self) + sizeof(Window));
  }

  virtual const WindowDescription& description() const = 0;
  // What the description's messages extend.
  const MessageMap* base_messages() const { return Base::GetMessageMap(); }
};

}  // namespace corvane
