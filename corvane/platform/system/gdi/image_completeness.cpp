#include "corvane/platform/system/gdi/image_completeness.h"

#include <array>
#include <cstdint>
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

}  // namespace

bool is_complete_image(std::FILE* file) {
  std::array<std::uint8_t, 8> start{};
  std::rewind(file);
  const std::size_t read = std::fread(start.data(), 1, start.size(), file);
  if (read == start.size() && start == kPngStart) return is_complete_png(file);
  if (read >= 2 && start[0] == 0xFF && start[1] == kStartOfImage) {
    std::fseek(file, 2, SEEK_SET);
    return is_complete_jpeg(file);
  }
  return true;
}

}  // namespace corvane::system
