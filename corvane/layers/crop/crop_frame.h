#pragma once
// The crop rectangle and what the mouse does to it. Knows no window: a host can use it alone.
// All points and rectangles are client coordinates of the area that is cropped, in pixels; left
// and top are inside a rectangle, right and bottom outside. Results that would leave the range of
// a coordinate stay at its end.
#include <array>

#include "corvane/platform/platform.h"

namespace corvane {

// Where a point lies, and so what a drag from there does.
namespace crop_hit {
enum : int {
  none = -1,  // no button is down
  outside = 0,
  top_left = 1,
  top = 2,
  top_right = 3,
  right = 4,
  bottom_right = 5,
  bottom = 6,
  bottom_left = 7,
  left = 8,
  inside = 9,
};
}  // namespace crop_hit

class CropFrame {
 public:
  static constexpr int kHandleReach = 4;   // from the handle's point to each side of its square
  static constexpr int kMinZonedSize = 8;  // below this width or height there are no zones

  const RECT& rectangle() const { return rectangle_; }
  // The hit code that the drag began with; crop_hit::none while no button is down.
  int drag_mode() const { return drag_mode_; }
  bool dragging() const { return drag_mode_ != crop_hit::none; }
  // No rectangle, or one whose edges were dragged past each other.
  bool empty() const;
  // The rectangle becomes (0, 0, 0, 0); a drag that is going on goes on.
  void clear();
  // Any rectangle; a drag that is going on goes on from there.
  void set_rectangle(const RECT& rectangle) { rectangle_ = rectangle; }

  // A crop_hit code from outside to inside. Handles win over the inside, lower codes over higher.
  int hit_test(POINT point) const;

  // The left button went down. Returns the code of the drag that begins; outside starts a new
  // rectangle at the point.
  int press(POINT point);
  // The mouse moved. While dragging, changes the rectangle; moving it as a whole keeps it in
  // `client`, whose right and bottom win when it does not fit. Returns the code whose cursor fits.
  int move(POINT point, const RECT& client);
  // The left button went up. True: the drag has drawn a new rectangle that has an area.
  bool release();

  // The squares of the handles, in the order of the codes 1 to 8.
  std::array<RECT, 8> handle_squares() const;
  // The outline as one line through five points; it overshoots the first corner by a pixel at
  // both ends, which closes that corner.
  std::array<POINT, 5> outline() const;

 private:
  void draw_to(POINT point);
  void resize(POINT point);
  void shift(POINT point, const RECT& client);

  RECT rectangle_{0, 0, 0, 0};
  POINT last_{0, 0};    // the mouse at its previous message
  POINT anchor_{0, 0};  // where the button went down
  int drag_mode_ = crop_hit::none;
};

// The number of the system cursor for a hit code; codes without one show the cross.
int crop_cursor_id(int code);

// Where a bar of the given size stands: right-aligned under the rectangle, lifted to end at the
// bottom of `client` where it would leave it. It may reach out at the left.
RECT place_crop_bar(const RECT& rectangle, SIZE bar, const RECT& client);

}  // namespace corvane
