#pragma once
// A combo box. So far: its window, with the skin's main image and its caption as window text.
#include "corvane/platform/controls/skinned_wnd.h"

namespace corvane {

class CGdiComboBox : public CSkinnedWnd {};

}  // namespace corvane
