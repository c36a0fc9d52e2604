#pragma once
// The window class Static: a text, a rectangle, a frame or a bitmap. It lets the mouse through
// unless it has SS_NOTIFY.
#include "corvane/platform/system/common_controls/control.h"

namespace corvane::system {

class StaticControl : public Control {
 public:
  using Control::Control;
  LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;

 private:
  static const ControlMessage<StaticControl> kMessages[];

  LRESULT on_hit_test(WPARAM wparam, LPARAM lparam);
  LRESULT on_dialog_code(WPARAM wparam, LPARAM lparam);
  LRESULT on_press(WPARAM wparam, LPARAM lparam);
  LRESULT on_double_click(WPARAM wparam, LPARAM lparam);
  LRESULT on_enable(WPARAM wparam, LPARAM lparam);
  LRESULT on_set_image(WPARAM wparam, LPARAM lparam);
  LRESULT on_get_image(WPARAM wparam, LPARAM lparam);
  void paint(HDC dc) override;

  void paint_text(HDC dc, DWORD type) const;
  void paint_bitmap(HDC dc) const;

  HBITMAP bitmap_ = nullptr;  // the program's
};

}  // namespace corvane::system
