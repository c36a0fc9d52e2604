#include "tests/support/bitmap_file.h"

#include <cstdint>

namespace corvane::test {

std::string bitmap_file(SIZE size, COLORREF color) {
  const LONG row = (size.cx * 3 + 3) / 4 * 4;
  const LONG planes_and_depth = 1 + (24 << 16);
  std::string bytes = "BM";
  for (const LONG number :
       {54 + row * size.cy, LONG{0}, LONG{54}, LONG{40}, size.cx, size.cy, planes_and_depth}) {
    for (int i = 0; i < 4; ++i) bytes.push_back(static_cast<char>(number >> (8 * i)));
  }
  bytes.append(24, '\0');
  std::string line;
  for (int x = 0; x < size.cx; ++x) {
    line += {static_cast<char>(GetBValue(color)), static_cast<char>(GetGValue(color)),
             static_cast<char>(GetRValue(color))};
  }
  line.resize(static_cast<std::size_t>(row));
  for (int y = 0; y < size.cy; ++y) bytes += line;
  return bytes;
}

}  // namespace corvane::test
