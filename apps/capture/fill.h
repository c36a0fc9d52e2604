#pragma once
#include "corvane/platform/platform.h"

namespace capture {

void fill_with(HDC dc, const RECT& rect, COLORREF color);
void frame_with(HDC dc, const RECT& rect, COLORREF color);  // one pixel, inside

}  // namespace capture
