#pragma once
// A display in memory with somebody in front of it who lets go of the mouse: a nested loop (a drag
// of the window, a menu) gets its end although the stream of operations waits for that loop.
#include "corvane/platform/platform.h"
#include "corvane/platform/system/display/headless_display.h"

class PatientDisplay : public corvane::system::HeadlessDisplay {
 public:
  using HeadlessDisplay::HeadlessDisplay;

  bool wait(std::optional<std::uint64_t> deadline) override {
    if (++waits_ % kPatience == 0) let_go();
    return HeadlessDisplay::wait(deadline);
  }

 private:
  static constexpr int kPatience = 50;  // waits

  void let_go() {
    corvane::system::InputEvent event;
    event.kind = corvane::system::InputKind::mouse_button;
    event.button = VK_LBUTTON;
    push(event);
    event = {};
    event.kind = corvane::system::InputKind::key;
    event.virtual_key = VK_ESCAPE;
    event.down = true;
    push(event);
    event.down = false;
    push(event);
  }

  int waits_ = 0;
};
