#pragma once
// Window classes named after what they are made of.
#include "corvane/platform/platform.h"

namespace corvane {

// Registers a window class with these properties and returns its name, the same one for the same
// combination; null when it cannot be registered. The name lives as long as the thread. The class
// owns the brush from then on.
const wchar_t* AfxRegisterWndClass(UINT class_style, HCURSOR cursor = nullptr,
                                   HBRUSH background = nullptr, HICON icon = nullptr);

}  // namespace corvane
