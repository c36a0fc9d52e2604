#include "corvane/platform/framework/paint_dc.h"

#include "corvane/platform/framework/wnd.h"

namespace corvane {

CPaintDC::CPaintDC(const CWnd* window)
    : window_(window != nullptr ? window->GetSafeHwnd() : nullptr) {
  if (window_ != nullptr) Attach(::BeginPaint(window_, &m_ps));
}

CPaintDC::~CPaintDC() {
  if (Detach() != nullptr) ::EndPaint(window_, &m_ps);
}

}  // namespace corvane
