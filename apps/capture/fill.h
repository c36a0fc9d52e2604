#pragma once
#include "corvane/platform/framework/framework.h"

namespace capture {

void fill_with(HDC dc, const RECT& rect, COLORREF color);
void frame_with(HDC dc, const RECT& rect, COLORREF color);  // one pixel, inside

// DrawTextW with a font and a colour, '&' as it stands; what does not fit ends in an ellipsis. The
// rectangle as the text takes it, with DT_CALCRECT.
RECT draw_text(HDC dc, const corvane::CString& text, RECT rect, const LOGFONTW& font,
               COLORREF color, UINT format);

}  // namespace capture
