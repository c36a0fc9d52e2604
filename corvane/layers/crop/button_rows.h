#pragma once
// The two rows of the crop bar: 3, 4, 1, 2 in normal use and 5, 6 for text recognition. Both begin
// at the bar's upper left corner; one is visible at a time. Client coordinates of the bar, pixels.
#include <array>

#include "corvane/platform/platform.h"

namespace corvane {

enum class CropRow { normal, text_recognition };

// The rectangles of the buttons 1 to 6, button 1 first.
using CropButtonRects = std::array<RECT, 6>;

// Each button keeps its width and height; rows stand left to right without gaps, tops at 0.
CropButtonRects lay_out_crop_buttons(const CropButtonRects& rects);

// From the row's first button to the right edge of its last, as high as the first.
RECT crop_row_bounds(const CropButtonRects& rects, CropRow row);

// The row that the button (1 to 6) stands in.
CropRow row_of_crop_button(int button);

}  // namespace corvane
