#pragma once
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace corvane::system {

// What an .ani file holds: each step shows one of the icons (in the layout of .cur files).
struct AnimatedCursor {
  struct Step {
    std::string_view icon;
    std::uint32_t duration;  // in 1/60 s, at least 1
  };
  std::vector<Step> steps;  // one at least
};

bool is_animated_cursor(std::string_view bytes);
// Nothing when it is damaged. The icons are parts of `bytes`.
std::optional<AnimatedCursor> read_animated_cursor(std::string_view bytes);

// A number of the file, the lower byte first; 0 behind its end.
std::uint32_t little_endian(std::string_view bytes, std::size_t at, std::size_t length);

}  // namespace corvane::system
