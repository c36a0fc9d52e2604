#pragma once
// The device context of a window's client area, for as long as the object lives.
#include "corvane/platform/framework/dc.h"

namespace corvane {

class CWnd;

class CClientDC : public CDC {
 public:
  explicit CClientDC(const CWnd* window);  // null: the screen
  ~CClientDC() override;

 private:
  HWND window_;
};

}  // namespace corvane
