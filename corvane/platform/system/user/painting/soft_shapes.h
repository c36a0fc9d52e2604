#pragma once
// Rectangles, and round shapes with soft edges, which the system's own parts of windows are drawn
// with. A round one mixes its colour with the one that it is known to lie on.
#include "corvane/platform/system/gdi/gdi_api.h"

namespace corvane::system {

void fill_rect(HDC dc, const RECT& rect, COLORREF color);
void frame_rect(HDC dc, const RECT& rect, COLORREF color);  // one pixel wide, inside

// A share of 0 is all `under`, 1 all `over`.
COLORREF mixed(COLORREF under, COLORREF over, double share);
// How much of a pixel lies within a circle, 0 to 1; the pixel's middle is `distance` from the
// centre.
double circle_coverage(double distance, double radius);
// The disc that fits the square at (left, top), logical pixels.
void fill_disc(HDC dc, int left, int top, int size, COLORREF color, COLORREF under);

}  // namespace corvane::system
