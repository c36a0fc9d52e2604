#pragma once
// What a push button does, without a window: how presses, moves, the space bar, focus and enabling
// change its look, and when it is clicked. The window feeds events in and afterwards follows
// wants_capture() and appearance().

namespace corvane {

enum class ButtonLook { normal, hover, pressed, disabled, selected };
constexpr int kButtonLooks = 5;

class ButtonBehavior {
 public:
  struct Appearance {
    ButtonLook look = ButtonLook::normal;
    bool focus_ring = false;  // only when the keyboard brought or used the focus
    bool operator==(const Appearance&) const = default;
  };

  Appearance appearance() const;
  bool wants_capture() const { return press_ != Press::none; }
  bool enabled() const { return enabled_; }
  bool selected() const { return selected_; }

  // The pointer: `inside` says whether it is over the button. A captured button hears of presses
  // outside too. release() and space_up() return whether that was a click.
  void press(bool inside);
  void move(bool inside);
  void leave();
  bool release(bool inside);

  void space_down();  // repeats while the key is held change nothing
  bool space_up();

  // The press ends without a click: capture lost, button hidden.
  void cancel();
  void gain_focus();
  void lose_focus();
  void set_enabled(bool enabled);
  void set_selected(bool selected) { selected_ = selected; }

 private:
  enum class Press { none, mouse, space };
  ButtonLook look() const;

  Press press_ = Press::none;
  bool inside_ = false;  // while pressed by mouse: the pointer is over the button
  bool hover_ = false;
  bool focused_ = false;
  bool keyboard_focus_ = false;
  bool enabled_ = true;
  bool selected_ = false;
};

}  // namespace corvane
