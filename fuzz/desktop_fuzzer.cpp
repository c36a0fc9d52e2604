// Any bytes as a stream of input, messages and operations over a host with all its layers.
#include <cstdlib>
#include <memory>

#include "corvane/platform/system/gdi/gdi.h"
#include "corvane/platform/system/user/window_system.h"
#include "fuzz/desktop.h"
#include "fuzz/patient_display.h"
#include "fuzz/require.h"

namespace {

constexpr SIZE kScreen{320, 240};

// Plays the stream and destroys all windows. The drawing objects that are left then: window
// classes own some for as long as the window system lives.
int objects_left_by(ByteStream stream) {
  auto owned = std::make_unique<PatientDisplay>(kScreen);
  auto& display = *owned;
  corvane::system::WindowSystem system(std::move(owned));
  {
    Desktop desktop(system, display);
    desktop.play(stream);
    desktop.close();
    require(system.live_windows() == 0, "no window is left when all were destroyed");
    require(system.live_timers() == 0, "no timer is left without its window");
  }
  return system.gdi().live_objects();
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
