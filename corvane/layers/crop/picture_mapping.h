#pragma once
// Between a picture's own pixels and the place where a view shows it. Whole numbers only, exact at
// every scale: rectangles are half-open (right and bottom outside), sizes in pixels.
#include "corvane/platform/platform.h"

namespace corvane {

// The picture's pixels that a rectangle of the view frames. A picture pixel belongs to the result
// when the rectangle covers any part of it, so nothing that was framed is lost; what lies outside
// the picture is cut off.
//
// `shown` is where the whole picture stands in the view, at any scale and offset; `framed` uses
// the same coordinates. An empty or inverted rectangle, an empty picture, or a frame beside the
// picture give (0, 0, 0, 0); anything else gives at least one pixel, and framing all of `shown`
// gives exactly the whole picture.
RECT picture_pixels(SIZE picture, const RECT& shown, const RECT& framed);

// Where what a rectangle of the view frames stands when the picture is shown at another place or
// scale, to the nearest pixel. Unchanged when one of the places is empty.
RECT framed_at(const RECT& framed, const RECT& shown, const RECT& shown_now);

// Where a picture is shown in `area`: centred, as large as fits with its proportions kept, small
// pictures at their own size. At least one pixel wide and high; (0, 0, 0, 0) when the picture or
// the area is empty.
RECT fit_picture(SIZE picture, const RECT& area);

}  // namespace corvane
