#pragma once
// A pen that is deleted with its object.
#include "corvane/platform/framework/gdi_object.h"

namespace corvane {

class CPen : public CGdiObject {
 public:
  CPen() = default;
  CPen(int style, int width, COLORREF color) { CreatePen(style, width, color); }
  // Replaces the former pen. The width is in pixels; false: no pen could be made.
  bool CreatePen(int style, int width, COLORREF color);
  operator HPEN() const { return static_cast<HPEN>(m_hObject); }
};

}  // namespace corvane
