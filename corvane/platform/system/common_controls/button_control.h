#pragma once
// The window class Button: push buttons, check boxes, radio buttons and group boxes. A click is
// told to the parent as WM_COMMAND with BN_CLICKED.
#include "corvane/platform/system/common_controls/control.h"

namespace corvane::system {

class ButtonControl : public Control {
 public:
  using Control::Control;
  LRESULT handle(UINT message, WPARAM wparam, LPARAM lparam) override;

 private:
  static const ControlMessage<ButtonControl> kMessages[];

  LRESULT on_hit_test(WPARAM wparam, LPARAM lparam);
  LRESULT on_dialog_code(WPARAM wparam, LPARAM lparam);
  LRESULT on_press(WPARAM wparam, LPARAM lparam);
  LRESULT on_double_click(WPARAM wparam, LPARAM lparam);
  LRESULT on_move(WPARAM wparam, LPARAM lparam);
  LRESULT on_release(WPARAM wparam, LPARAM lparam);
  LRESULT on_capture_lost(WPARAM wparam, LPARAM lparam);
  LRESULT on_cancel(WPARAM wparam, LPARAM lparam);
  LRESULT on_key_down(WPARAM wparam, LPARAM lparam);
  LRESULT on_key_up(WPARAM wparam, LPARAM lparam);
  LRESULT on_set_focus(WPARAM wparam, LPARAM lparam);
  LRESULT on_kill_focus(WPARAM wparam, LPARAM lparam);
  LRESULT on_get_check(WPARAM wparam, LPARAM lparam);
  LRESULT on_set_check(WPARAM wparam, LPARAM lparam);
  LRESULT on_get_state(WPARAM wparam, LPARAM lparam);
  LRESULT on_set_state(WPARAM wparam, LPARAM lparam);
  LRESULT on_set_style(WPARAM wparam, LPARAM lparam);
  LRESULT on_click(WPARAM wparam, LPARAM lparam);
  void paint(HDC dc) override;

  UINT type() const { return style() & BS_TYPEMASK; }
  // By mouse or Space; while it holds the capture.
  enum class Hold { none, mouse, space };
  void set_pushed(bool pushed);
  void press(Hold hold);
  // Ends a press; a click follows when the button was pushed to the end.
  void finish_press();
  void click();
  void tell_if_wanted(UINT code) const;
  void choose_in_group() const;

  Hold hold_ = Hold::none;
  bool pushed_ = false;
  WPARAM check_ = BST_UNCHECKED;
};

}  // namespace corvane::system
