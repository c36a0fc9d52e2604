// Any bytes as a stream of input, messages and operations over a host with all its layers.
#include <cstdlib>
#include <memory>

#include "fuzz/desktop.h"
#include "fuzz/patient_display.h"
#include "fuzz/require.h"
#include "tests/support/own_system.h"

namespace {

constexpr SIZE kScreen{320, 240};

// Plays the stream and destroys all windows. The drawing objects that are left then: window
// classes own some for as long as the window system lives.
int objects_left_by(ByteStream stream) {
  using corvane::test::OwnSystem;
  corvane::test::Desktop screen(
      std::make_unique<OwnSystem>(std::make_unique<PatientDisplay>(kScreen)));
  {
    Desktop desktop(screen);
    desktop.play(stream);
    desktop.close();
    require(screen.living_windows() == 0, "no window is left when all were destroyed");
    require(screen.own().windows.live_timers() == 0, "no timer is left without its window");
  }
  return screen.living_drawing_objects();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  setenv("CORVANE_SKIN", CORVANE_FUZZ_SKIN, 1);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const int baseline = objects_left_by({nullptr, 0});
  require(objects_left_by({data, size}) <= baseline, "no drawing object outlives its windows");
  return 0;
}
