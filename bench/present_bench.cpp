// present_bench NAME: a whole frame and a small part of it on their way to the desktop that the
// environment names, against a plain copy of the frame.
#include <cstdio>
#include <cstring>

#include "bench/measure.h"
#include "corvane/platform/system/display/sdl/sdl_display.h"

namespace corvane::bench {
namespace {

using system::Pixel;
using system::Region;
using system::Surface;

// What the desktop does with a frame is not measured: it gets the time for it.
void settle(system::SdlDisplay& display) {
  std::vector<system::InputEvent> events;
  for (const std::uint64_t end = display.now() + 20; display.now() < end;) {
    display.wait(end);
    display.poll(events);
  }
}

int run(const Options& options) {
  const SIZE size{1920, 1080};
  const auto display = system::SdlDisplay::open(size);
  if (display == nullptr || options.rest.empty()) {
    std::fprintf(stderr, "usage: present_bench NAME, where there is a desktop\n");
    return 2;
  }
  display->show();
  Surface frame(size.cx, size.cy, 0xFF336699);
  const Pixel* const pixels = frame.pixels();
  std::vector<Pixel> copy(static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy));
  const Region all(frame.rect());
  const Region part({700, 500, 764, 564});
  const auto rest = [&] { settle(*display); };
  const std::vector<Times> times = interleaved(
      {[&] { std::memcpy(copy.data(), pixels, copy.size() * sizeof(Pixel)); },
       [&] { display->present(frame, all); }, rest, [&] { display->present(frame, part); }, rest,
       // Whatever the whole frame left to do is done.
       [&] { display->present(frame, part); }, rest},
      options.smoke ? 2 : 60);
  Report report(options);
  report.ratio("1920 x 1080 presented on " + options.rest[0], times[1], times[0], 0);
  report.ratio("64 x 64 after it on " + options.rest[0], times[3], times[0], 0);
  report.ratio("64 x 64 once more on " + options.rest[0], times[5], times[0], 0);
  return report.exit_status();
}

}  // namespace
}  // namespace corvane::bench

int main(int argc, char** argv) {
  return corvane::bench::run(corvane::bench::options_of(argc, argv));
}
