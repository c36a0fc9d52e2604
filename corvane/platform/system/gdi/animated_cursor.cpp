#include "corvane/platform/system/gdi/animated_cursor.h"

#include <algorithm>
#include <cstddef>

namespace corvane::system {
namespace {

constexpr std::size_t kMostSteps = 4096;
constexpr std::size_t kHeaderSize = 36;  // bytes that every version has
constexpr std::uint32_t kDefaultDuration = 10;

struct Chunk {
  std::string_view kind;
  std::string_view content;
};

// The first chunk, which is cut off from `rest`; nothing when it does not fit.
std::optional<Chunk> take_chunk(std::string_view& rest) {
  if (rest.size() < 8) return std::nullopt;
  const std::size_t size = little_endian(rest, 4, 4);
  if (size > rest.size() - 8) return std::nullopt;
  const Chunk chunk{rest.substr(0, 4), rest.substr(8, size)};
  rest.remove_prefix(std::min(rest.size(), 8 + size + size % 2));
  return chunk;
}

struct Parts {
  std::string_view header;
  std::string_view rates;
  std::string_view sequence;
  std::vector<std::string_view> icons;
};

bool collect_icons(std::string_view list, Parts& parts) {
  if (!list.starts_with("fram")) return true;
  for (list.remove_prefix(4); !list.empty();) {
    const auto chunk = take_chunk(list);
    if (!chunk || parts.icons.size() >= kMostSteps) return false;
    if (chunk->kind == "icon") parts.icons.push_back(chunk->content);
  }
  return true;
}

std::optional<Parts> collect(std::string_view bytes) {
  Parts parts;
  std::string_view rest = bytes.substr(12);
  while (rest.size() >= 8) {
    const auto chunk = take_chunk(rest);
    if (!chunk) return std::nullopt;
    if (chunk->kind == "anih") parts.header = chunk->content;
    if (chunk->kind == "rate") parts.rates = chunk->content;
    if (chunk->kind == "seq ") parts.sequence = chunk->content;
    if (chunk->kind == "LIST" && !collect_icons(chunk->content, parts)) return std::nullopt;
  }
  return parts;
}

}  // namespace

std::uint32_t little_endian(std::string_view bytes, std::size_t at, std::size_t length) {
  std::uint32_t value = 0;
  for (std::size_t byte = length; byte-- > 0;) {
    const bool inside = at + byte < bytes.size();
    value = value << 8 | (inside ? static_cast<std::uint8_t>(bytes[at + byte]) : 0u);
  }
  return value;
}

bool is_animated_cursor(std::string_view bytes) {
  return bytes.size() >= 12 && bytes.starts_with("RIFF") && bytes.substr(8, 4) == "ACON";
}

std::optional<AnimatedCursor> read_animated_cursor(std::string_view bytes) {
  if (!is_animated_cursor(bytes)) return std::nullopt;
  const auto parts = collect(bytes);
  if (!parts || parts->header.size() < kHeaderSize || parts->icons.empty()) return std::nullopt;
  const std::uint32_t usual = little_endian(parts->header, 28, 4);
  const std::size_t wanted = little_endian(parts->header, 8, 4);
  const std::size_t count = parts->sequence.empty() ? parts->icons.size() : wanted;
  if (count == 0 || count > kMostSteps) return std::nullopt;
  if (!parts->sequence.empty() && parts->sequence.size() < 4 * count) return std::nullopt;
  AnimatedCursor cursor;
  for (std::size_t at = 0; at < count; ++at) {
    const std::size_t icon =
        parts->sequence.empty() ? at : little_endian(parts->sequence, 4 * at, 4);
    const bool own_rate = parts->rates.size() >= 4 * (at + 1);
    const std::uint32_t duration = own_rate ? little_endian(parts->rates, 4 * at, 4) : usual;
    if (icon >= parts->icons.size()) return std::nullopt;
    cursor.steps.push_back({parts->icons[icon], duration != 0 ? duration : kDefaultDuration});
  }
  return cursor;
}

}  // namespace corvane::system
