#pragma once
// Sides and corners by their WMSZ_ numbers, and what dragging one does to a rectangle.
#include "corvane/platform/system/user/constants.h"
#include "corvane/platform/system/user/user_api.h"

namespace corvane::system {

// The frame after a side (WMSZ_LEFT to WMSZ_BOTTOMRIGHT) was dragged by `travel`: the opposite
// side stays, the size keeps to the limits' track sizes, of which the smallest counts first.
RECT sized_frame(const RECT& frame, int side, POINT travel, const MINMAXINFO& limits);

}  // namespace corvane::system
