#pragma once
// A font that is selected into a device context for as long as the object lives.
#include "corvane/platform/platform.h"

namespace corvane {

class CSetFont {
 public:
  // `height` is the cell height in pixels, negative: the character height; `width` the average
  // character width, 0: the face's own. The weight is 400 for normal, 700 for bold text; a null
  // face: the platform's choice. The device context is borrowed and must outlive the object.
  CSetFont(HDC dc, int height, int width, int weight, const wchar_t* face, bool underlined = false);
  ~CSetFont();  // selects the former font again
  CSetFont(const CSetFont&) = delete;
  CSetFont& operator=(const CSetFont&) = delete;

 private:
  HDC dc_;
  HFONT font_;
  HGDIOBJ former_ = nullptr;
};

}  // namespace corvane
