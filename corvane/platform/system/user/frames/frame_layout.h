#pragma once
// Where the parts of a window's frame lie: arithmetic on its outer rectangle and its styles.
#include <array>

#include "corvane/platform/system/user/constants.h"
#include "corvane/platform/system/user/user_api.h"

namespace corvane::system {

// How far the client area is from each side of the window, scroll bars not counted.
struct FrameMargins {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

// The extended style that a window with these styles has: WS_EX_WINDOWEDGE comes with frames that
// are raised, and goes with them.
DWORD with_window_edge(DWORD style, DWORD ex_style);

class FrameLayout {
 public:
  // Coordinates are those of `outer`.
  FrameLayout(const RECT& outer, DWORD style, DWORD ex_style);

  const RECT& outer() const { return outer_; }
  int border() const { return border_; }            // thickness outside of caption and client edge
  int client_edge() const { return client_edge_; }  // thickness; 0 without
  const RECT& caption() const { return caption_; }  // empty without
  RECT text() const;                                // of the caption, beside the boxes
  // Of HTCLOSE, HTMAXBUTTON or HTMINBUTTON; empty when the window has none, or no room for it.
  RECT box(int hit_code) const;
  FrameMargins margins() const;
  // What is left for scroll bars and client area; empty, never turned round, when it is too small.
  RECT inside() const;
  // The code of a point that is neither in the client area nor in a scroll bar.
  int hit(POINT point) const;

 private:
  void place_boxes();
  int sizing_hit(POINT point) const;

  RECT outer_;
  DWORD style_;
  DWORD ex_style_;
  int border_ = 0;
  int client_edge_ = 0;
  RECT caption_{};
  struct Box {
    int hit_code;
    RECT rect;
  };
  std::array<Box, 3> boxes_{{{HTCLOSE, {}}, {HTMAXBUTTON, {}}, {HTMINBUTTON, {}}}};
};

}  // namespace corvane::system
