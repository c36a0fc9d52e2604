#include "corvane/platform/framework/scroll_bar.h"

namespace corvane {

constinit const CRuntimeClass CScrollBar::classCScrollBar{"CScrollBar", &CWnd::classCWnd};

const CRuntimeClass* CScrollBar::GetRuntimeClass() const { return &classCScrollBar; }

}  // namespace corvane
