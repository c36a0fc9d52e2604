#pragma once
// A font that is deleted with its object.
#include "corvane/platform/framework/gdi_object.h"

namespace corvane {

class CFont : public CGdiObject {
 public:
  // Replaces the former font; false: none could be made.
  bool CreateFontIndirectW(const LOGFONTW* description);
  bool GetLogFont(LOGFONTW* description) const;  // false: no font
  operator HFONT() const { return static_cast<HFONT>(m_hObject); }
};

}  // namespace corvane
