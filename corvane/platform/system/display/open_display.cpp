#include "corvane/platform/system/display/open_display.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "corvane/platform/system/display/headless_display.h"
#include "corvane/platform/system/display/sdl/sdl_display.h"

namespace corvane::system {

namespace {

constexpr SIZE kDefaultSize{1280, 800};
constexpr LONG kMaxSide = 16384;

std::string_view environment(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr ? value : "";
}

// The whole text as a side's length; 0 when it is none.
LONG side_of(std::string_view text) {
  LONG side = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, side);
  return error == std::errc() && stop == end && side <= kMaxSide ? side : 0;
}

// Empty when none is wanted.
SIZE wanted_size() {
  const std::string_view text = environment("CORVANE_SCREEN");
  const std::size_t cross = text.find('x');
  if (cross == std::string_view::npos) return {};
  const SIZE size{side_of(text.substr(0, cross)), side_of(text.substr(cross + 1))};
  return size.cx > 0 && size.cy > 0 ? size : SIZE{};
}

bool has_native_desktop() {
  return !environment("DISPLAY").empty() || !environment("WAYLAND_DISPLAY").empty();
}

}  // namespace

std::unique_ptr<Display> open_display() {
  const SIZE size = wanted_size();
  const std::string_view kind = environment("CORVANE_DISPLAY");
  const bool only_native = kind == "sdl";
  if (!kind.empty() && !only_native && kind != "headless") {
    std::fprintf(stderr, "corvane: CORVANE_DISPLAY=%s is unknown (headless, sdl)\n", kind.data());
  }
  if (kind == "headless" || (!only_native && !has_native_desktop())) {
    return std::make_unique<HeadlessDisplay>(size.cx > 0 ? size : kDefaultSize);
  }
  // A program that nobody sees would run on for ever.
  auto display = SdlDisplay::open(size);
  if (display == nullptr) {
    std::fprintf(stderr, "corvane: no window can be shown on the native desktop\n");
  }
  return display;
}

}  // namespace corvane::system
