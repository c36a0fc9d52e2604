#pragma once
// A scroll bar control.
#include "corvane/platform/framework/wnd.h"

namespace corvane {

class CScrollBar : public CWnd {
 public:
  static const CRuntimeClass classCScrollBar;
  const CRuntimeClass* GetRuntimeClass() const override;
};

}  // namespace corvane
