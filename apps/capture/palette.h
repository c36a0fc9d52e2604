#pragma once
// The colours of what the program draws itself; they go with the default skin.
#include "corvane/platform/platform.h"

namespace capture {

inline constexpr COLORREF kStageColor = RGB(0x14, 0x1A, 0x20);
inline constexpr COLORREF kPanelColor = RGB(0x1E, 0x26, 0x30);
inline constexpr COLORREF kPanelEdgeColor = RGB(0x3A, 0x46, 0x54);
inline constexpr COLORREF kScrollMarkColor = RGB(0x5B, 0x69, 0x79);
inline constexpr COLORREF kRowHoverColor = RGB(0x2C, 0x37, 0x44);
inline constexpr COLORREF kTextColor = RGB(0xE8, 0xEE, 0xF4);
inline constexpr COLORREF kQuietTextColor = RGB(0x93, 0xA1, 0xB0);
inline constexpr COLORREF kAccentColor = RGB(0x21, 0xC4, 0x6B);

// As CGdiDC draws text: red above green above blue, opaque.
constexpr DWORD opaque_argb(COLORREF color) {
  return 0xFF000000 | (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}
inline constexpr DWORD kTextArgb = opaque_argb(kTextColor);
inline constexpr DWORD kQuietTextArgb = opaque_argb(kQuietTextColor);

}  // namespace capture
