#pragma once
// What stands behind the tests' desktop and only our own window system can answer: the cursor's
// shape, timers, what is presented, the display's size and end.
#include <memory>

#include "corvane/platform/system/display/headless_display.h"
#include "corvane/platform/system/user/window_system.h"
#include "tests/support/desktop.h"

namespace corvane::test {

struct OwnSystem {
  explicit OwnSystem(std::unique_ptr<system::HeadlessDisplay> screen)
      : display(*screen), windows(std::move(screen)) {}

  system::HeadlessDisplay& display;
  system::WindowSystem windows;
};

}  // namespace corvane::test
