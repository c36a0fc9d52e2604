#pragma once
// A red window from 100,100 to 300,250, and above it a layer of the same size that is owned by it.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {

class LayeredTest : public WindowTest {
 protected:
  LayeredTest() {
    create("below", {.style = WS_POPUP | WS_VISIBLE, .place = {100, 100, 200, 150}});
    paint_patches("below", {{{0, 0, 200, 150}, kRed}});
    layer_ = create("layer", {.parent = window("below"),
                              .style = WS_POPUP | WS_VISIBLE,
                              .place = {100, 100, 200, 150},
                              .ex_style = WS_EX_LAYERED});
    settle();
  }
  void set_extended_style(DWORD style) {
    SetWindowLongW(layer_, GWL_EXSTYLE, static_cast<LONG>(style));
  }
  HWND layer_ = nullptr;
};

}  // namespace corvane::conformance
