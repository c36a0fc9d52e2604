// A stack of owned overlays: a background, a keyed layer owned by it, a bar owned by the layer.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class OverlayStackTest : public WindowTest {
 protected:
  OverlayStackTest() {
    recorder().after_default("background", WM_CREATE, [this] { create_layer(); });
    recorder().after_default("layer", WM_CREATE, [this] {
      create("bar", {.parent = window("layer"), .place = {.width = 0, .height = 0}});
    });
    for (const UINT message : {WM_SIZE, WM_MOVE}) {
      recorder().before_default("background", message, [this] { follow(); });
    }
    recorder().only({WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE});
    background_ = create("background", {.parent = host_, .place = {100, 100, 200, 150}});
    EXPECT_EQ(IsWindowVisible(background_), 0) << "the layer is placed before";
    layer_ = window("layer");
    bar_ = window("bar");
  }

  void create_layer() {
    create("layer", {.parent = window("background"),
                     .place = {.width = 0, .height = 0},
                     .ex_style = WS_EX_LAYERED});
    SetLayeredWindowAttributes(window("layer"), kWhite, 0, LWA_COLORKEY);
    paint_patches("layer", {{{20, 20, 60, 60}, RGB(40, 40, 40)}});
  }

  void follow() {
    const RECT rect = window_rect(window("background"));
    MoveWindow(window("layer"), rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
               TRUE);
  }

  void show_all() {
    EXPECT_EQ(ShowWindow(layer_, SW_SHOW), 0);
    EXPECT_EQ(ShowWindow(background_, SW_SHOW), 0);
    settle();
  }

  const HWND host_ = settled_popup("host", 0, 0, 600, 500);
  HWND background_ = nullptr;
  HWND layer_ = nullptr;
  HWND bar_ = nullptr;
};

TEST_F(OverlayStackTest, NestedCreationsCompleteInsideTheOuterOne) { step(); }

TEST_F(OverlayStackTest, LayerStaysAboveTheBackgroundThatTakesTheActivation) {
  forget();
  recorder().only({WM_ACTIVATE});
  step("the layer is shown", ShowWindow(layer_, SW_SHOW));
  step("the background is shown", ShowWindow(background_, SW_SHOW));
  pump();
  EXPECT_EQ(pixel(130, 130), RGB(40, 40, 40));
}

TEST_F(OverlayStackTest, PressOnTheDarkPartIsTheLayersAndOnTheKeyTheBackgrounds) {
  show_all();
  recorder().only({WM_MOUSEMOVE, WM_MOUSEACTIVATE, WM_ACTIVATE, WM_LBUTTONDOWN, WM_LBUTTONUP});
  click(130, 130);
  step("dark");
  click(250, 200);
  step("key");
  recorder().before_default("background", WM_LBUTTONDOWN, [&] { SetCapture(layer_); });
  press();
  move_to(240, 190);
  release();
  step("captured for the layer");
}

TEST_F(OverlayStackTest, ObservedThatActivationWalksUpTheOwners) {
  show_all();
  MoveWindow(bar_, 120, 260, 50, 20, TRUE);
  ShowWindow(bar_, SW_SHOW);
  pump();
  for (const HWND next : {layer_, background_, host_}) {
    ShowWindow(GetActiveWindow(), SW_HIDE);
    EXPECT_EQ(name_of(GetActiveWindow()), name_of(next));
  }
}

TEST_F(OverlayStackTest, DestroyingTheBackgroundTakesTheStackAlong) {
  show_all();
  recorder().only({WM_NCDESTROY});
  DestroyWindow(background_);
  step();
}

}  // namespace
}  // namespace corvane::conformance
