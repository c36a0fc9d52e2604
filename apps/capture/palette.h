#pragma once
// The colours of what the program draws itself; they go with the default skin.
#include "corvane/platform/platform.h"

namespace capture {

inline const COLORREF kStageColor = RGB(0x14, 0x1A, 0x20);
inline const COLORREF kPanelColor = RGB(0x1E, 0x26, 0x30);
inline const COLORREF kPanelEdgeColor = RGB(0x3A, 0x46, 0x54);
inline const COLORREF kScrollMarkColor = RGB(0x5B, 0x69, 0x79);
inline const COLORREF kRowHoverColor = RGB(0x2C, 0x37, 0x44);
inline const COLORREF kTextColor = RGB(0xE8, 0xEE, 0xF4);
inline const COLORREF kQuietTextColor = RGB(0x93, 0xA1, 0xB0);
inline const COLORREF kAccentColor = RGB(0x21, 0xC4, 0x6B);

}  // namespace capture
