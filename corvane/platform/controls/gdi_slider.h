#pragma once
// A slider. So far: its window, with the skin's main image.
#include "corvane/platform/controls/skinned_wnd.h"

namespace corvane {

class CGdiSlider : public CSkinnedWnd {};

}  // namespace corvane
