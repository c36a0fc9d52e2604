#pragma once
// A brush that is deleted with its object.
#include "corvane/platform/framework/gdi_object.h"

namespace corvane {

class CBrush : public CGdiObject {
 public:
  CBrush() = default;
  explicit CBrush(COLORREF color) { CreateSolidBrush(color); }
  // Replaces the former brush; false: none could be made.
  bool CreateSolidBrush(COLORREF color);
  operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
};

}  // namespace corvane
