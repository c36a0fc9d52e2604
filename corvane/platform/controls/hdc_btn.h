#pragma once
// A button that draws itself with a device context. So far: its window, with the skin's main image.
#include "corvane/platform/controls/skinned_wnd.h"

namespace corvane {

class CHdcBtn : public CSkinnedWnd {};

}  // namespace corvane
