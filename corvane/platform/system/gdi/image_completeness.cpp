#include "corvane/platform/system/gdi/image_completeness.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace corvane::system {

namespace {

constexpr std::array<std::uint8_t, 8> kPngStart = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr int kEndOfImage = 0xD9;
constexpr int kStartOfImage = 0xD8;
constexpr int kStartOfScan = 0xDA;

bool has_length(int marker) {
  const bool restart_or_temporary = (marker >= 0xD0 && marker <= 0xD8) || marker == 0x01;
  return !restart_or_temporary;
}

// The next marker behind anything else, the coded data of a scan included; EOF at the file's end.
int next_marker(std::FILE* file) {
  int byte = getc_unlocked(file);
  while (byte != EOF) {
    if (byte != 0xFF) {
      byte = getc_unlocked(file);
      continue;
    }
    byte = getc_unlocked(file);
    if (byte != 0x00 && byte != 0xFF && byte != EOF) return byte;
  }
  return EOF;
}

bool is_complete_jpeg(std::FILE* file) {
  bool scanned = false;
  for (int marker = next_marker(file); marker != EOF; marker = next_marker(file)) {
    if (marker == kEndOfImage) return scanned;
    if (marker == kStartOfScan) scanned = true;
    if (!has_length(marker)) continue;
    std::uint8_t size[2];
    if (std::fread(size, 1, 2, file) != 2) return false;
    const long length = size[0] * 256 + size[1];
    if (length < 2 || std::fseek(file, length - 2, SEEK_CUR) != 0) return false;
  }
  return false;
}

bool is_complete_png(std::FILE* file) {
  std::uint8_t head[8];
  while (std::fread(head, 1, sizeof head, file) == sizeof head) {
    const std::uint32_t length = (std::uint32_t{head[0]} << 24) | (std::uint32_t{head[1]} << 16) |
                                 (std::uint32_t{head[2]} << 8) | head[3];
    if (std::memcmp(head + 4, "IEND", 4) == 0) {
      std::uint8_t checksum[4];
      return length == 0 && std::fread(checksum, 1, sizeof checksum, file) == sizeof checksum;
    }
    if (std::fseek(file, static_cast<long>(length) + 4, SEEK_CUR) != 0) return false;
  }
  return false;
}

std::int64_t little_endian(const std::uint8_t* bytes, int count) {
  std::uint32_t value = 0;
  for (int at = count - 1; at >= 0; --at) value = (value << 8) | bytes[at];
  return count == 2 ? static_cast<std::int64_t>(value)
                    : static_cast<std::int64_t>(static_cast<std::int32_t>(value));
}

// The rows must be there unless they are run-length coded, where the decoder looks for the end.
bool is_complete_bmp(std::FILE* file) {
  std::array<std::uint8_t, 34> head{};
  if (std::fseek(file, 0, SEEK_SET) != 0) return false;
  if (std::fread(head.data(), 1, head.size(), file) != head.size()) return false;
  const bool old_header = little_endian(&head[14], 4) == 12;
  const int size = old_header ? 2 : 4;
  const std::int64_t width = little_endian(&head[18], size);
  const std::int64_t height =
      std::abs(little_endian(&head[18 + static_cast<std::size_t>(size)], size));
  const std::int64_t depth = little_endian(&head[old_header ? 24 : 28], 2);
  const std::int64_t coding = old_header ? 0 : little_endian(&head[30], 4);
  if (coding == 1 || coding == 2) return true;
  const std::int64_t row = (width * depth + 31) / 32 * 4;
  const std::int64_t needed =
      little_endian(&head[10], 4) + row * (height - 1) + (width * depth + 7) / 8;
  return std::fseek(file, 0, SEEK_END) == 0 && std::ftell(file) >= needed;
}

}  // namespace

bool is_complete_image(std::FILE* file) {
  std::array<std::uint8_t, 8> start{};
  if (std::fseek(file, 0, SEEK_SET) != 0) return false;
  const std::size_t read = std::fread(start.data(), 1, start.size(), file);
  if (read == start.size() && start == kPngStart) return is_complete_png(file);
  if (read >= 2 && start[0] == 0xFF && start[1] == kStartOfImage) {
    std::fseek(file, 2, SEEK_SET);
    return is_complete_jpeg(file);
  }
  if (read >= 2 && start[0] == 'B' && start[1] == 'M') return is_complete_bmp(file);
  return true;
}

}  // namespace corvane::system
