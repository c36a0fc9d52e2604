#pragma once
// The window class ScrollBar: a scroll bar that is a window of its own. It tells its parent by
// WM_HSCROLL or WM_VSCROLL with its handle in lParam, for the mouse and for keys.
#include "corvane/platform/system/common_controls/control.h"
#include "corvane/platform/system/user/scroll_bars/scroll_bars.h"

namespace corvane::system {

class ScrollBarControl : public Control {
 public:
  using Control::Control;
  LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;

 private:
  static const ControlMessage<ScrollBarControl> kMessages[];

  LRESULT on_create(WPARAM wparam, LPARAM lparam);
  LRESULT on_press(WPARAM wparam, LPARAM lparam);
  LRESULT on_key_down(WPARAM wparam, LPARAM lparam);
  LRESULT on_key_up(WPARAM wparam, LPARAM lparam);
  LRESULT on_focus(WPARAM wparam, LPARAM lparam);
  LRESULT on_dialog_code(WPARAM wparam, LPARAM lparam);
  LRESULT on_set_position(WPARAM wparam, LPARAM lparam);
  LRESULT on_get_position(WPARAM wparam, LPARAM lparam);
  LRESULT on_set_range(WPARAM wparam, LPARAM lparam);
  LRESULT on_set_range_redraw(WPARAM wparam, LPARAM lparam);
  LRESULT on_get_range(WPARAM wparam, LPARAM lparam);
  LRESULT on_set_info(WPARAM wparam, LPARAM lparam);
  LRESULT on_get_info(WPARAM wparam, LPARAM lparam);
  void paint(HDC dc) override;

  // Without a window once it is gone.
  BarTarget bar() const;
  SCROLLINFO info(UINT mask) const;
  void tell(UINT code) const;

  ScrollAxis axis_ = ScrollAxis::horizontal;
};

}  // namespace corvane::system
