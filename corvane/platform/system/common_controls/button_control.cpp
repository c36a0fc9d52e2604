#include "corvane/platform/system/common_controls/button_control.h"

#include "corvane/platform/system/common_controls/button_painting.h"

namespace corvane::system {
namespace {

// What a click makes of the check of the automatic kinds.
WPARAM next_check(UINT type, WPARAM check) {
  switch (type) {
    case BS_AUTOCHECKBOX:
      return check == BST_UNCHECKED ? BST_CHECKED : BST_UNCHECKED;
    case BS_AUTO3STATE:
      return check == BST_INDETERMINATE ? BST_UNCHECKED : check + 1;
    case BS_AUTORADIOBUTTON:
      return BST_CHECKED;
    default:
      return check;
  }
}

WPARAM highest_check(UINT type) {
  if (type == BS_3STATE || type == BS_AUTO3STATE) return BST_INDETERMINATE;
  return kind_of_button(type) == ButtonKind::push ? BST_UNCHECKED : BST_CHECKED;
}

}  // namespace

const ControlMessage<ButtonControl> ButtonControl::kMessages[] = {
    {WM_NCHITTEST, &ButtonControl::on_hit_test},
    {WM_GETDLGCODE, &ButtonControl::on_dialog_code},
    {WM_LBUTTONDOWN, &ButtonControl::on_press},
    {WM_LBUTTONDBLCLK, &ButtonControl::on_double_click},
    {WM_MOUSEMOVE, &ButtonControl::on_move},
    {WM_LBUTTONUP, &ButtonControl::on_release},
    {WM_CAPTURECHANGED, &ButtonControl::on_capture_lost},
    {WM_CANCELMODE, &ButtonControl::on_cancel},
    {WM_KEYDOWN, &ButtonControl::on_key_down},
    {WM_KEYUP, &ButtonControl::on_key_up},
    {WM_SETFOCUS, &ButtonControl::on_set_focus},
    {WM_KILLFOCUS, &ButtonControl::on_kill_focus},
    {BM_GETCHECK, &ButtonControl::on_get_check},
    {BM_SETCHECK, &ButtonControl::on_set_check},
    {BM_GETSTATE, &ButtonControl::on_get_state},
    {BM_SETSTATE, &ButtonControl::on_set_state},
    {BM_SETSTYLE, &ButtonControl::on_set_style},
    {BM_CLICK, &ButtonControl::on_click},
};

LRESULT ButtonControl::handle(UINT message, WPARAM wparam, LPARAM lparam) {
  const auto* entry = entry_for(kMessages, message);
  return entry != nullptr ? (this->*entry->handler)(wparam, lparam)
                          : handle_shared(message, wparam, lparam);
}

LRESULT ButtonControl::on_hit_test(WPARAM wparam, LPARAM lparam) {
  if (type() == BS_GROUPBOX) return HTTRANSPARENT;
  return DefWindowProcW(window(), WM_NCHITTEST, wparam, lparam);
}

LRESULT ButtonControl::on_dialog_code(WPARAM, LPARAM) {
  switch (kind_of_button(type())) {
    case ButtonKind::push:
      return DLGC_BUTTON | (type() == BS_DEFPUSHBUTTON ? DLGC_DEFPUSHBUTTON : DLGC_UNDEFPUSHBUTTON);
    case ButtonKind::radio:
      return DLGC_BUTTON | DLGC_RADIOBUTTON;
    case ButtonKind::group:
      return DLGC_STATIC;
    default:
      return DLGC_BUTTON;
  }
}

void ButtonControl::set_pushed(bool pushed) {
  if (pushed == pushed_) return;
  pushed_ = pushed;
  redraw();
}

void ButtonControl::press(Hold hold) {
  if (GetFocus() != window()) SetFocus(window());
  SetCapture(window());
  if (GetCapture() != window()) return;
  hold_ = hold;
  set_pushed(true);
}

void ButtonControl::finish_press() {
  const bool clicked = hold_ != Hold::none && pushed_;
  hold_ = Hold::none;
  set_pushed(false);
  if (GetCapture() == window()) ReleaseCapture();
  if (clicked) click();
}

void ButtonControl::choose_in_group() const {
  const HWND dialog = GetParent(window());
  HWND other = GetNextDlgGroupItem(dialog, window(), FALSE);
  for (HWND first = other; other != nullptr && other != window();) {
    const auto code = static_cast<UINT>(SendMessageW(other, WM_GETDLGCODE, 0, 0));
    if ((code & DLGC_RADIOBUTTON) != 0) SendMessageW(other, BM_SETCHECK, BST_UNCHECKED, 0);
    other = GetNextDlgGroupItem(dialog, other, FALSE);
    if (other == first) return;
  }
}

void ButtonControl::click() {
  const UINT type = this->type();
  const WPARAM wanted = next_check(type, check_);
  if (wanted != check_) SendMessageW(window(), BM_SETCHECK, wanted, 0);
  if (type == BS_AUTORADIOBUTTON) choose_in_group();
  tell_parent(BN_CLICKED);
}

void ButtonControl::tell_if_wanted(UINT code) const {
  if ((style() & BS_NOTIFY) != 0) tell_parent(code);
}

LRESULT ButtonControl::on_press(WPARAM, LPARAM) {
  press(Hold::mouse);
  return 0;
}

LRESULT ButtonControl::on_double_click(WPARAM, LPARAM) {
  const bool told = (style() & BS_NOTIFY) != 0 || type() == BS_RADIOBUTTON;
  if (told) {
    tell_parent(BN_DBLCLK);
  } else {
    press(Hold::mouse);
  }
  return 0;
}

LRESULT ButtonControl::on_move(WPARAM, LPARAM lparam) {
  if (hold_ != Hold::mouse) return 0;
  const RECT area = client();
  const bool inside = PtInRect(&area, {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)}) != FALSE;
  set_pushed(inside);
  return 0;
}

LRESULT ButtonControl::on_release(WPARAM wparam, LPARAM lparam) {
  if (hold_ != Hold::mouse) return 0;
  on_move(wparam, lparam);
  finish_press();
  return 0;
}

LRESULT ButtonControl::on_capture_lost(WPARAM, LPARAM) {
  hold_ = Hold::none;
  set_pushed(false);
  return 0;
}

LRESULT ButtonControl::on_cancel(WPARAM wparam, LPARAM lparam) {
  pushed_ = false;
  finish_press();
  redraw();
  return DefWindowProcW(window(), WM_CANCELMODE, wparam, lparam);
}

LRESULT ButtonControl::on_key_down(WPARAM key, LPARAM lparam) {
  if (key != VK_SPACE) return DefWindowProcW(window(), WM_KEYDOWN, key, lparam);
  if (hold_ == Hold::none) press(Hold::space);
  return 0;
}

LRESULT ButtonControl::on_key_up(WPARAM key, LPARAM lparam) {
  if (key != VK_SPACE) return DefWindowProcW(window(), WM_KEYUP, key, lparam);
  if (hold_ == Hold::space) finish_press();
  return 0;
}

LRESULT ButtonControl::on_set_focus(WPARAM, LPARAM) {
  redraw();
  tell_if_wanted(BN_SETFOCUS);
  return 0;
}

LRESULT ButtonControl::on_kill_focus(WPARAM, LPARAM) {
  if (hold_ != Hold::none) {
    pushed_ = false;
    finish_press();
  }
  redraw();
  tell_if_wanted(BN_KILLFOCUS);
  return 0;
}

LRESULT ButtonControl::on_get_check(WPARAM, LPARAM) { return static_cast<LRESULT>(check_); }

LRESULT ButtonControl::on_set_check(WPARAM check, LPARAM) {
  const WPARAM highest = highest_check(type());
  const WPARAM wanted = check > highest ? highest : check;
  if (wanted == check_) return 0;
  check_ = wanted;
  redraw();
  // The chosen one of a group of radio buttons is where Tab stops.
  if (kind_of_button(type()) == ButtonKind::radio) {
    const DWORD stop = wanted != BST_UNCHECKED ? WS_TABSTOP : 0;
    SetWindowLongW(window(), GWL_STYLE, static_cast<LONG>((style() & ~WS_TABSTOP) | stop));
  }
  return 0;
}

LRESULT ButtonControl::on_get_state(WPARAM, LPARAM) {
  const bool focused = GetFocus() == window();
  return static_cast<LRESULT>(check_ | (pushed_ ? BST_PUSHED : 0) | (focused ? BST_FOCUS : 0));
}

LRESULT ButtonControl::on_set_state(WPARAM pushed, LPARAM) {
  set_pushed(pushed != 0);
  return 0;
}

LRESULT ButtonControl::on_set_style(WPARAM wanted, LPARAM shows) {
  const DWORD kept = style() & 0xFFFF0000u;
  SetWindowLongW(window(), GWL_STYLE, static_cast<LONG>(kept | (wanted & 0xFFFFu)));
  if (LOWORD(static_cast<DWORD_PTR>(shows)) != 0) redraw();
  return 0;
}

LRESULT ButtonControl::on_click(WPARAM, LPARAM) {
  SendMessageW(window(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
  SendMessageW(window(), WM_LBUTTONUP, 0, 0);
  return 0;
}

void ButtonControl::paint(HDC dc) {
  const RECT area = client();
  const ButtonKind kind = kind_of_button(type());
  const HBRUSH under =
      background(dc, kind == ButtonKind::push ? WM_CTLCOLORBTN : WM_CTLCOLORSTATIC);
  // A group box lies under what it groups, which it must not cover.
  if (kind != ButtonKind::group) FillRect(dc, &area, under);
  paint_button(dc, area,
               {.text = text(),
                .style = style(),
                .check = check_,
                .pushed = pushed_,
                .focused = GetFocus() == window(),
                .enabled = enabled(),
                .background = under});
}

}  // namespace corvane::system
