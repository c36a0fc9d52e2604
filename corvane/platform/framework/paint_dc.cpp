#include "corvane/platform/framework/paint_dc.h"

#include "corvane/platform/framework/wnd.h"

namespace corvane {

CPaintDC::CPaintDC(const CWnd* window) : window_(window ? window->GetSafeHwnd() : nullptr) {
  if (window_) Attach(::BeginPaint(window_, &m_ps));
}

CPaintDC::~CPaintDC() {
  if (Detach()) ::EndPaint(window_, &m_ps);
}

}  // namespace corvane
