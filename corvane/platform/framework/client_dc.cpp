#include "corvane/platform/framework/client_dc.h"

#include "corvane/platform/framework/wnd.h"

namespace corvane {

CClientDC::CClientDC(const CWnd* window)
    : window_(window != nullptr ? window->GetSafeHwnd() : nullptr) {
  // An object without a window must not get the screen.
  if (window == nullptr || window_ != nullptr) Attach(::GetDC(window_));
}

CClientDC::~CClientDC() {
  if (const HDC dc = Detach()) ::ReleaseDC(window_, dc);
}

}  // namespace corvane
