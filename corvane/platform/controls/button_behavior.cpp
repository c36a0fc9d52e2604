#include "corvane/platform/controls/button_behavior.h"

namespace corvane {

ButtonBehavior::Appearance ButtonBehavior::appearance() const {
  return {look(), enabled_ && focused_ && keyboard_focus_};
}

ButtonLook ButtonBehavior::look() const {
  if (!enabled_) return ButtonLook::disabled;
  if (press_ == Press::space || (press_ == Press::mouse && inside_)) return ButtonLook::pressed;
  if (selected_) return ButtonLook::selected;
  return hover_ ? ButtonLook::hover : ButtonLook::normal;
}

void ButtonBehavior::press(bool inside) {
  if (!enabled_) return;
  press_ = inside ? Press::mouse : Press::none;
  inside_ = inside;
  hover_ = inside;
  keyboard_focus_ = false;
}

void ButtonBehavior::move(bool inside) {
  if (!enabled_) return;
  inside_ = inside;
  hover_ = inside;
}

void ButtonBehavior::leave() { hover_ = false; }

bool ButtonBehavior::release(bool inside) {
  const bool clicked = enabled_ && press_ == Press::mouse && inside;
  if (press_ == Press::mouse) press_ = Press::none;
  move(inside);
  return clicked;
}

void ButtonBehavior::space_down() {
  if (!enabled_ || press_ != Press::none) return;
  press_ = Press::space;
  keyboard_focus_ = true;
}

bool ButtonBehavior::space_up() {
  const bool clicked = enabled_ && press_ == Press::space;
  if (press_ == Press::space) press_ = Press::none;
  return clicked;
}

void ButtonBehavior::cancel() { press_ = Press::none; }

void ButtonBehavior::gain_focus() {
  focused_ = true;
  keyboard_focus_ = press_ != Press::mouse;
}

void ButtonBehavior::lose_focus() {
  focused_ = false;
  cancel();
}

void ButtonBehavior::set_enabled(bool enabled) {
  enabled_ = enabled;
  if (enabled) return;
  cancel();
  hover_ = false;
}

}  // namespace corvane
