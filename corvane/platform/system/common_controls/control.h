#pragma once
// What every control has: an object behind its window, a table of the messages that it handles, a
// font, and a way to tell its parent. The object outlives the handling of a message in which its
// window is destroyed; what it then asks of the window fails softly.
#include <memory>
#include <string>

#include "corvane/platform/system/user/constants.h"
#include "corvane/platform/system/user/user_api.h"

namespace corvane::system {

constexpr int kControlExtra = sizeof(LONG_PTR);  // bytes that a control's class keeps for a window

class Control {
 public:
  explicit Control(HWND window) : window_(window) {}
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  virtual LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) = 0;

 protected:
  HWND window() const { return window_; }
  DWORD style() const { return static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE)); }
  RECT client() const;
  bool enabled() const { return IsWindowEnabled(window_) != FALSE; }
  HFONT font() const;
  std::wstring text() const;
  // What the parent answers to WM_CTLCOLOR...: the brush to lay under everything. It may also set
  // the colours of the text.
  HBRUSH background(HDC dc, UINT question) const;
  void redraw() const { InvalidateRect(window_, nullptr, FALSE); }
  // WM_COMMAND to the parent, with the control's id.
  void tell_parent(UINT code) const;

  // What controls share: font, new looks, painting by paint().
  LRESULT handle_shared(UINT message, WPARAM wparam, LPARAM lparam);

 private:
  // Draws all of the client area, whose upper left corner is (0, 0).
  virtual void paint(HDC dc) = 0;
  LRESULT on_paint(HDC given);

  HWND window_;
  HFONT font_ = nullptr;
};

template <class Type>
struct ControlMessage {
  UINT message;
  LRESULT (Type::*handler)(WPARAM wparam, LPARAM lparam);
};

// The entry of a control's table for a message; null when it has none.
template <class Type, std::size_t count>
const ControlMessage<Type>* entry_for(const ControlMessage<Type> (&table)[count], UINT message) {
  for (const ControlMessage<Type>& entry : table) {
    if (entry.message == message) return &entry;
  }
  return nullptr;
}

template <class Type>
LRESULT CALLBACK control_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  using Held = std::shared_ptr<Type>;
  if (message == WM_NCCREATE) {
    auto held = std::make_unique<Held>(std::make_shared<Type>(window));
    SetWindowLongPtrW(window, 0, reinterpret_cast<LONG_PTR>(held.release()));
  }
  auto* held = reinterpret_cast<Held*>(GetWindowLongPtrW(window, 0));
  if (held == nullptr) return DefWindowProcW(window, message, wparam, lparam);
  const Held control = *held;
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(window, 0, 0);
    delete held;
  }
  return control->handle(message, wparam, lparam);
}

}  // namespace corvane::system
