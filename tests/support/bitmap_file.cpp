#include "tests/support/bitmap_file.h"

#include <cstdint>

namespace corvane::test {
namespace {

void append_number(std::string& bytes, std::uint32_t number, int length) {
  for (int i = 0; i < length; ++i) bytes.push_back(static_cast<char>(number >> (8 * i)));
}

}  // namespace

std::string bitmap_file(SIZE size, COLORREF color) {
  const int row = (size.cx * 3 + 3) / 4 * 4;
  std::string bytes = "BM";
  append_number(bytes, static_cast<std::uint32_t>(54 + row * size.cy), 4);
  append_number(bytes, 0, 4);
  append_number(bytes, 54, 4);
  append_number(bytes, 40, 4);
  append_number(bytes, static_cast<std::uint32_t>(size.cx), 4);
  append_number(bytes, static_cast<std::uint32_t>(size.cy), 4);
  append_number(bytes, 1, 2);
  append_number(bytes, 24, 2);
  bytes.append(24, '\0');
  for (int y = 0; y < size.cy; ++y) {
    std::string line;
    for (int x = 0; x < size.cx; ++x) {
      for (const int channel : {GetBValue(color), GetGValue(color), GetRValue(color)}) {
        line.push_back(static_cast<char>(channel));
      }
    }
    line.resize(static_cast<std::size_t>(row));
    bytes += line;
  }
  return bytes;
}

}  // namespace corvane::test
