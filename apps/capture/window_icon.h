#pragma once
#include "corvane/platform/platform.h"

namespace capture {

// The icon of the program's window, from the skin.
class CWindowIcon {
 public:
  void Give(HWND window);
  void TakeBack(HWND window);  // before the window ends

 private:
  HICON icon_ = nullptr;
};

}  // namespace capture
