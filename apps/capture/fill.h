#pragma once
#include "corvane/platform/platform.h"

namespace capture {

void FillWith(HDC dc, const RECT& rect, COLORREF color);
void FrameWith(HDC dc, const RECT& rect, COLORREF color);  // one pixel, inside

}  // namespace capture
