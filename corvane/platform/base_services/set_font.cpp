#include "corvane/platform/base_services/set_font.h"

namespace corvane {

CSetFont::CSetFont(HDC dc, int height, int width, int weight, const wchar_t* face, bool underlined)
    : dc_(dc),
      font_(CreateFontW(height, width, 0, 0, weight, FALSE, underlined ? TRUE : FALSE, FALSE,
                        DEFAULT_CHARSET, 0, 0, DEFAULT_QUALITY, 0, face)) {
  if (font_ != nullptr) former_ = SelectObject(dc_, font_);
}

CSetFont::~CSetFont() {
  if (former_ != nullptr) SelectObject(dc_, former_);
  if (font_ != nullptr) DeleteObject(font_);
}

}  // namespace corvane
