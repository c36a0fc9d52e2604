#include "corvane/platform/framework/window_dc.h"

#include "corvane/platform/framework/wnd.h"

namespace corvane {

CWindowDC::CWindowDC(const CWnd* window)
    : window_(window != nullptr ? window->GetSafeHwnd() : nullptr) {
  // An object without a window must not get the screen.
  if (window == nullptr || window_ != nullptr) Attach(::GetWindowDC(window_));
}

CWindowDC::~CWindowDC() {
  if (const HDC dc = Detach()) ::ReleaseDC(window_, dc);
}

}  // namespace corvane
