#pragma once
// How large a picture is shown, and which part of it: arithmetic without a window.
#include "corvane/platform/platform.h"

namespace capture {

// `area` is where a picture is fitted to, in the coordinates of all points and results; the same
// picture stays zoomed as it is when the area changes.
class CPictureZoom {
 public:
  void SetPicture(SIZE size);  // fits again; empty: none
  void Fit() { scale_ = 0; }
  // To the next of fixed scales (the picture's own size and, three to a doubling, others), `steps`
  // times in or, below 0, out; what is shown at `about` stays there as far as the picture reaches.
  // Out beyond the fitting size fits.
  void ZoomBy(int steps, POINT about, const RECT& area);
  void ZoomToOwnSize(POINT about, const RECT& area);
  void Pan(SIZE way, const RECT& area);  // moves the picture that far

  bool zoomed() const { return scale_ > 0; }
  // Where the whole picture stands; empty without one. A side that is larger than the area's covers
  // it, one that is not stands in its middle.
  RECT Shown(const RECT& area) const;

 private:
  double fitting_scale(const RECT& area) const;
  void zoom_to(double scale, POINT about, const RECT& area);
  void keep_inside(const RECT& area);

  SIZE picture_{};
  double scale_ = 0;                    // pixels shown for one of the picture; 0: fitted
  double middle_x_ = 0, middle_y_ = 0;  // of the area, in the picture's pixels
};

}  // namespace capture
