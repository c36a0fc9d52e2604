#pragma once
// The device context of a whole window with its frame, for as long as the object lives.
#include "corvane/platform/framework/dc.h"

namespace corvane {

class CWnd;

class CWindowDC : public CDC {
 public:
  explicit CWindowDC(const CWnd* window);  // null: the screen
  ~CWindowDC() override;

 private:
  HWND window_;
};

}  // namespace corvane
