#pragma once
// A crop over the whole client area of the host, as a host sets it up, and what tests of layers
// look at.
#include "corvane/layers/crop/cut_bg_layer.h"
#include "tests/support/host_test.h"

namespace corvane::test {

// Creates the background's window over the client area of `host`, with a mid-grey brush, through
// which the picture shows least changed.
bool create_over(corvane::CCutBgLayer& background, HWND host);
// The window between the background and the bar; null when it does not exist.
HWND rect_layer_of(HWND background);

// Whether the button shows TestSkin's caption, in the colour of each state.
void expect_caption_of_the_skin(Desktop& desktop, HWND button);
inline bool waits_for_paint(HWND window) { return ::GetUpdateRect(window, nullptr, FALSE) != 0; }
void click_middle_of(Desktop& desktop, HWND window);

class CropTest : public HostTest {
 protected:
  void SetUp() override;
  void start(bool with_bar = true, bool text_recognition = false);

  // The screen point of a point in the crop's client coordinates, which are the host's.
  static POINT on_screen(int x, int y) { return {host_place.left + x, host_place.top + y}; }
  void drag(POINT from, POINT to);  // client coordinates
  HWND rect_layer() const { return rect_layer_of(background_); }
  HWND bar() const { return background_.GetBarHwnd(); }
  bool bar_is_shown() const { return ::IsWindowVisible(bar()); }

  corvane::CCutBgLayer background_;
};

}  // namespace corvane::test
