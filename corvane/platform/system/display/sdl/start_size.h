#pragma once
#include "corvane/platform/system/types.h"

namespace corvane::system {

// How large a window begins on a desktop with that work area, pixels: three quarters of it, or
// 1280 x 800 where that is more; never so large that its frame would not fit.
SIZE start_size(SIZE work_area);

}  // namespace corvane::system
