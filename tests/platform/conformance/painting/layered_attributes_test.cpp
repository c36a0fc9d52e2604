// Layered windows with a colour key and an alpha: state, hit testing and the composed screen.
#include "tests/platform/conformance/support/layered_test.h"

namespace corvane::conformance {
namespace {

int blended(int upper, int lower, int alpha) {
  return (upper * alpha + lower * (255 - alpha) + 127) / 255;
}

// The layer is white with a black square from 20,20 to 60,60.
class LayerAttributesTest : public LayeredTest {
 protected:
  LayerAttributesTest() {
    paint_patches("layer", {{{20, 20, 60, 60}, kBlack}});
    InvalidateRect(layer_, nullptr, TRUE);
    settle();
  }
  std::string on_black() { return pressed_at(130, 130); }
  std::string on_white() { return pressed_at(220, 200); }
};

TEST_F(LayerAttributesTest, AttributesAreKeptAsSet) {
  COLORREF key = 0;
  BYTE alpha = 0;
  DWORD flags = 0;
  EXPECT_EQ(GetLayeredWindowAttributes(layer_, &key, &alpha, &flags), 0);
  step("", SetLayeredWindowAttributes(layer_, RGB(1, 2, 3), 77, LWA_COLORKEY | LWA_ALPHA));
  EXPECT_NE(GetLayeredWindowAttributes(layer_, &key, &alpha, &flags), 0);
  EXPECT_EQ(key, RGB(1, 2, 3));
  EXPECT_EQ(alpha, 77);
  EXPECT_EQ(flags, LWA_COLORKEY | LWA_ALPHA);
}

TEST_F(LayerAttributesTest, StyleMayBeAddedLaterAndClearingItForgets) {
  const HWND plain = settled_popup("plain", 400, 100, 50, 50);
  EXPECT_EQ(SetLayeredWindowAttributes(plain, 0, 100, LWA_ALPHA), 0);
  SetWindowLongW(plain, GWL_EXSTYLE, static_cast<LONG>(WS_EX_LAYERED));
  step();
  EXPECT_NE(pixel(410, 110), kWhite) << "nothing shown until attributes are set";
  EXPECT_NE(SetLayeredWindowAttributes(plain, 0, 255, LWA_ALPHA), 0);
  SetWindowLongW(plain, GWL_EXSTYLE, 0);
  EXPECT_EQ(pixel(410, 110), kWhite) << "an ordinary window again";
  SetWindowLongW(plain, GWL_EXSTYLE, static_cast<LONG>(WS_EX_LAYERED));
  EXPECT_EQ(GetLayeredWindowAttributes(plain, nullptr, nullptr, nullptr), 0);
}

struct Attributes {
  const char* label;
  COLORREF key;
  BYTE alpha;
  DWORD flags;
  const char* black_goes_to;
  const char* white_goes_to;
  COLORREF black_part;  // as seen over red
  COLORREF white_part;
};

TEST_F(LayerAttributesTest, KeyAndAlphaDecideOnPressAndPixel) {
  const COLORREF dark120 = RGB(blended(0, 255, 120), 0, 0);
  const COLORREF light120 = RGB(255, blended(255, 0, 120), blended(255, 0, 120));
  const COLORREF dark1 = RGB(blended(0, 255, 1), 0, 0);
  const COLORREF light1 = RGB(255, blended(255, 0, 1), blended(255, 0, 1));
  constexpr DWORD kBoth = LWA_COLORKEY | LWA_ALPHA;
  EXPECT_EQ(pixel(130, 130), kRed) << "without attributes nothing is shown";
  EXPECT_EQ(pixel(220, 200), kRed);
  EXPECT_EQ(on_black() + on_white(), "belowbelow") << "and nothing pressed";
  for (const Attributes& given :
       {Attributes{"key", kWhite, 0, LWA_COLORKEY, "layer", "below", kBlack, kRed},
        Attributes{"key, alpha 120", kWhite, 120, kBoth, "layer", "below", dark120, kRed},
        Attributes{"key, alpha 1", kWhite, 1, kBoth, "layer", "below", dark1, kRed},
        Attributes{"key, alpha 0", kWhite, 0, kBoth, "below", "below", kRed, kRed},
        Attributes{"black", kBlack, 0, LWA_COLORKEY, "below", "layer", kRed, kWhite},
        Attributes{"black, alpha 120", kBlack, 120, kBoth, "below", "layer", kRed, light120},
        Attributes{"nearly", RGB(254, 255, 255), 0, LWA_COLORKEY, "layer", "layer", kBlack, kWhite},
        Attributes{"no key", kWhite, 1, LWA_ALPHA, "layer", "layer", dark1, light1},
        Attributes{"alpha 120", kWhite, 120, LWA_ALPHA, "layer", "layer", dark120, light120},
        Attributes{"alpha 255", 0, 255, LWA_ALPHA, "layer", "layer", kBlack, kWhite},
        Attributes{"alpha 0", 0, 0, LWA_ALPHA, "below", "below", kRed, kRed}}) {
    SCOPED_TRACE(given.label);
    SetLayeredWindowAttributes(layer_, given.key, given.alpha, given.flags);
    pump();
    EXPECT_EQ(pixel(130, 130), given.black_part);
    EXPECT_EQ(pixel(220, 200), given.white_part);
    EXPECT_EQ(on_black(), given.black_goes_to);
    EXPECT_EQ(on_white(), given.white_goes_to);
    EXPECT_EQ(name_of(WindowFromPoint({130, 130})), given.black_goes_to);
    EXPECT_EQ(name_of(WindowFromPoint({220, 200})), given.white_goes_to);
  }
}

TEST_F(LayerAttributesTest, HoverAndCursorGoThroughKeyPixelsButACapturedDragDoesNot) {
  SetLayeredWindowAttributes(layer_, kWhite, 0, LWA_COLORKEY);
  recorder().only({WM_MOUSEMOVE, WM_SETCURSOR, WM_LBUTTONUP});
  move_to(220, 200);
  step("over the key");
  press_at(130, 130);
  SetCapture(layer_);
  forget();
  move_to(220, 200);
  move_to(20, 20);
  release();
  step("captured, over the key and outside");
}

TEST_F(LayerAttributesTest, PixelsPaintedLastDecide) {
  SetLayeredWindowAttributes(layer_, kWhite, 0, LWA_COLORKEY);
  EXPECT_EQ(on_black(), "layer");
  draw(layer_, {20, 20, 60, 60}, kWhite);
  EXPECT_EQ(on_black(), "below");
}

TEST_F(LayerAttributesTest, OnlyLayeredAndTransparentTogetherLetEverythingThrough) {
  SetLayeredWindowAttributes(layer_, 0, 255, LWA_ALPHA);
  set_extended_style(WS_EX_LAYERED | WS_EX_TRANSPARENT);
  EXPECT_EQ(on_black(), "below");
  EXPECT_EQ(pixel(130, 130), kBlack) << "but it is shown";
  create("glass", {.parent = window("below"),
                   .style = WS_POPUP | WS_VISIBLE,
                   .place = {100, 100, 200, 150},
                   .ex_style = WS_EX_TRANSPARENT});
  settle();
  EXPECT_EQ(on_black(), "glass");
}

TEST_F(LayerAttributesTest, AttributesAndMovesShowWithoutAPaint) {
  SetLayeredWindowAttributes(layer_, kWhite, 255, LWA_ALPHA);
  settle();
  recorder().only({WM_PAINT, WM_ERASEBKGND});
  recorder().only_windows({"layer"});
  SetLayeredWindowAttributes(layer_, kWhite, 255, LWA_COLORKEY);
  MoveWindow(layer_, 110, 105, 200, 150, TRUE);
  pump();
  step("changed and moved");
  EXPECT_EQ(pixel(220, 200), kRed);
  EXPECT_EQ(pixel(132, 127), kBlack);
  EXPECT_EQ(pixel(125, 122), kRed) << "the former place of the square";
  InvalidateRect(layer_, nullptr, TRUE);
  pump();
  step("invalidated");
  MoveWindow(layer_, 110, 105, 220, 150, TRUE);
  pump();
  step("widened");
}

TEST_F(LayerAttributesTest, ChildMayBeLayeredToo) {
  DestroyWindow(layer_);
  layer_ = create("layer", {.parent = window("below"),
                            .style = WS_CHILD | WS_VISIBLE,
                            .place = {.width = 200, .height = 150},
                            .ex_style = WS_EX_LAYERED});
  settle();
  EXPECT_NE(SetLayeredWindowAttributes(layer_, kWhite, 0, LWA_COLORKEY), 0);
  pump();
  EXPECT_EQ(on_black(), "layer");
  EXPECT_EQ(on_white(), "below");
  EXPECT_EQ(pixel(130, 130), kBlack);
  EXPECT_EQ(pixel(220, 200), kRed);
  SetLayeredWindowAttributes(layer_, 0, 255, LWA_ALPHA);
  set_extended_style(WS_EX_LAYERED | WS_EX_TRANSPARENT);
  EXPECT_EQ(on_black(), "below");
}

}  // namespace
}  // namespace corvane::conformance
