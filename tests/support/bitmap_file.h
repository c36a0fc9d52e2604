#pragma once
#include <string>

#include "corvane/platform/platform.h"

namespace corvane::test {

// What a bitmap file of one colour contains, 24 bits a pixel.
std::string bitmap_file(SIZE size, COLORREF color);

}  // namespace corvane::test
