#pragma once
// BeginPaint and EndPaint around an OnPaint handler. The window may be gone when it ends.
#include "corvane/platform/framework/dc.h"

namespace corvane {

class CWnd;

class CPaintDC : public CDC {
 public:
  explicit CPaintDC(const CWnd* window);
  ~CPaintDC() override;

  PAINTSTRUCT m_ps{};  // rcPaint: what is to be painted, client coordinates

 private:
  HWND window_;
};

}  // namespace corvane
