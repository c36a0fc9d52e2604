// Layered windows with a colour key and an alpha: state, hit testing and the composed screen.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF red = RGB(255, 0, 0);
const LONG layered_style = WS_EX_LAYERED;

int blended(int upper, int lower, int alpha) {
  return (upper * alpha + lower * (255 - alpha) + 127) / 255;
}

// A red window, and above it a layer, white with a black square from 20,20 to 60,60.
class LayeredTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    create("below", {.style = WS_POPUP | WS_VISIBLE, .place = {100, 100, 200, 150}});
    paint_patches("below", {{{0, 0, 200, 150}, red}});
    layer_ = create("layer", {.parent = window("below"),
                              .style = WS_POPUP | WS_VISIBLE,
                              .place = {100, 100, 200, 150},
                              .ex_style = WS_EX_LAYERED});
    paint_patches("layer", {{{20, 20, 60, 60}, black}});
    settle();
    recorder().only({WM_LBUTTONDOWN, WM_LBUTTONUP, WM_MOUSEMOVE, WM_SETCURSOR});
  }

  // Who gets a press at this point of the layer.
  std::string pressed_at(int x, int y) {
    move_to(1270, 790);
    move_to(100 + x, 100 + y);
    recorder().clear();
    recorder().only({WM_LBUTTONDOWN});
    press();
    std::string who;
    for (const LogLine& line : recorder().log()) who += line.text.substr(0, line.text.find(' '));
    release();
    return who;
  }
  std::string on_black() { return pressed_at(30, 30); }
  std::string on_white() { return pressed_at(120, 100); }

  HWND layer_ = nullptr;
};

TEST_F(LayeredTest, WithoutAttributesNothingIsShownAndNothingPressed) {
  EXPECT_EQ(pixel(130, 130), red);
  EXPECT_EQ(pixel(220, 200), red);
  EXPECT_EQ(on_black(), "below");
  EXPECT_EQ(on_white(), "below");
}

TEST_F(LayeredTest, AttributesAreKeptAsSet) {
  COLORREF key = 0;
  BYTE alpha = 0;
  DWORD flags = 0;
  EXPECT_EQ(GetLayeredWindowAttributes(layer_, &key, &alpha, &flags), 0);
  recorder().record_everything();
  recorder().clear();
  EXPECT_NE(SetLayeredWindowAttributes(layer_, RGB(1, 2, 3), 77, LWA_COLORKEY | LWA_ALPHA), 0);
  EXPECT_TRUE(log_is(""));
  EXPECT_NE(GetLayeredWindowAttributes(layer_, &key, &alpha, &flags), 0);
  EXPECT_EQ(key, RGB(1, 2, 3));
  EXPECT_EQ(alpha, 77);
  EXPECT_EQ(flags, LWA_COLORKEY | LWA_ALPHA);
}

TEST_F(LayeredTest, StyleMayBeAddedLaterAndClearingItForgets) {
  const HWND plain = settled_popup("plain", 400, 100, 50, 50);
  EXPECT_EQ(SetLayeredWindowAttributes(plain, 0, 100, LWA_ALPHA), 0);
  const LONG style = GetWindowLongW(plain, GWL_EXSTYLE);
  recorder().record_everything();
  SetWindowLongW(plain, GWL_EXSTYLE, style | layered_style);
  EXPECT_TRUE(log_is("plain WM_STYLECHANGING -20 > WM_STYLECHANGED -20"));
  EXPECT_NE(pixel(410, 110), white) << "nothing shown until attributes are set";
  EXPECT_NE(SetLayeredWindowAttributes(plain, 0, 255, LWA_ALPHA), 0);
  SetWindowLongW(plain, GWL_EXSTYLE, style);
  EXPECT_EQ(pixel(410, 110), white) << "an ordinary window again";
  SetWindowLongW(plain, GWL_EXSTYLE, style | layered_style);
  EXPECT_EQ(GetLayeredWindowAttributes(plain, nullptr, nullptr, nullptr), 0);
}

struct LayeredHit {
  const char* label;
  COLORREF key;
  BYTE alpha;
  DWORD flags;
  const char* black_goes_to;
  const char* white_goes_to;
};

class LayeredHitTest : public LayeredTest, public testing::WithParamInterface<LayeredHit> {};

TEST_P(LayeredHitTest, KeyAndAlphaDecideThePress) {
  const LayeredHit& hit = GetParam();
  SetLayeredWindowAttributes(layer_, hit.key, hit.alpha, hit.flags);
  EXPECT_EQ(on_black(), hit.black_goes_to);
  EXPECT_EQ(on_white(), hit.white_goes_to);
  EXPECT_EQ(name_of(WindowFromPoint({130, 130})), hit.black_goes_to);
  EXPECT_EQ(name_of(WindowFromPoint({220, 200})), hit.white_goes_to);
}

INSTANTIATE_TEST_SUITE_P(
    , LayeredHitTest,
    testing::Values(
        LayeredHit{"KeyWhite", white, 0, LWA_COLORKEY, "layer", "below"},
        LayeredHit{"KeyWhiteAlpha120", white, 120, LWA_COLORKEY | LWA_ALPHA, "layer", "below"},
        LayeredHit{"KeyWhiteAlpha1", white, 1, LWA_COLORKEY | LWA_ALPHA, "layer", "below"},
        LayeredHit{"KeyBlack", black, 0, LWA_COLORKEY, "below", "layer"},
        LayeredHit{"KeyBlackAlpha120", black, 120, LWA_COLORKEY | LWA_ALPHA, "below", "layer"},
        LayeredHit{"NearlyTheKey", RGB(254, 255, 255), 0, LWA_COLORKEY, "layer", "layer"},
        LayeredHit{"AlphaOnlyIgnoresTheKey", white, 1, LWA_ALPHA, "layer", "layer"},
        LayeredHit{"Alpha255", 0, 255, LWA_ALPHA, "layer", "layer"},
        LayeredHit{"Alpha0", 0, 0, LWA_ALPHA, "below", "below"},
        LayeredHit{"KeyWhiteAlpha0", white, 0, LWA_COLORKEY | LWA_ALPHA, "below", "below"}),
    [](const auto& instance) { return instance.param.label; });

TEST_F(LayeredTest, HoverAndCursorGoThroughKeyPixelsToo) {
  SetLayeredWindowAttributes(layer_, white, 0, LWA_COLORKEY);
  move_to(220, 200);
  EXPECT_EQ(recorder().count("layer", WM_MOUSEMOVE) + recorder().count("layer", WM_SETCURSOR), 0);
  EXPECT_EQ(recorder().count("below", WM_MOUSEMOVE), 1);
  EXPECT_EQ(recorder().count("below", WM_SETCURSOR), 1);
}

TEST_F(LayeredTest, PixelsPaintedLastDecide) {
  SetLayeredWindowAttributes(layer_, white, 0, LWA_COLORKEY);
  EXPECT_EQ(on_black(), "layer");
  const HDC dc = GetDC(layer_);
  fill(dc, {20, 20, 60, 60}, white);
  ReleaseDC(layer_, dc);
  EXPECT_EQ(on_black(), "below");
}

TEST_F(LayeredTest, CapturedDragContinuesOverKeyPixelsAndOutside) {
  SetLayeredWindowAttributes(layer_, white, 0, LWA_COLORKEY);
  press_at(130, 130);
  SetCapture(layer_);
  recorder().clear();
  recorder().only({WM_MOUSEMOVE, WM_LBUTTONUP});
  move_to(220, 200);
  move_to(20, 20);
  release();
  EXPECT_TRUE(
      log_is("layer (q) WM_MOUSEMOVE 120,100 LBUTTON > (q) WM_MOUSEMOVE -80,-80 LBUTTON >"
             "(q) WM_LBUTTONUP -80,-80"));
}

TEST_F(LayeredTest, LayeredAndTransparentLetsEverythingThrough) {
  SetLayeredWindowAttributes(layer_, 0, 255, LWA_ALPHA);
  EXPECT_EQ(on_black(), "layer");
  SetWindowLongW(layer_, GWL_EXSTYLE, layered_style | static_cast<LONG>(WS_EX_TRANSPARENT));
  EXPECT_EQ(on_black(), "below");
  EXPECT_EQ(pixel(130, 130), black) << "but it is shown";
}

TEST_F(LayeredTest, TransparentAloneTakesPresses) {
  create("glass", {.parent = window("below"),
                   .style = WS_POPUP | WS_VISIBLE,
                   .place = {100, 100, 200, 150},
                   .ex_style = WS_EX_TRANSPARENT});
  settle();
  EXPECT_EQ(on_black(), "glass");
}

struct LayeredScreen {
  const char* label;
  COLORREF key;
  BYTE alpha;
  DWORD flags;
  int black_part[3];  // red, green, blue expected over red
  int white_part[3];
};

class LayeredScreenTest : public LayeredTest, public testing::WithParamInterface<LayeredScreen> {};

TEST_P(LayeredScreenTest, KeyShowsWhatIsBelowAndAlphaBlends) {
  const LayeredScreen& expected = GetParam();
  SetLayeredWindowAttributes(layer_, expected.key, expected.alpha, expected.flags);
  pump();
  const COLORREF dark = pixel(130, 130);
  const COLORREF light = pixel(220, 200);
  EXPECT_EQ(dark, RGB(expected.black_part[0], expected.black_part[1], expected.black_part[2]));
  EXPECT_EQ(light, RGB(expected.white_part[0], expected.white_part[1], expected.white_part[2]));
}

INSTANTIATE_TEST_SUITE_P(
    , LayeredScreenTest,
    testing::Values(LayeredScreen{"Opaque", 0, 255, LWA_ALPHA, {0, 0, 0}, {255, 255, 255}},
                    LayeredScreen{"KeyWhite", white, 0, LWA_COLORKEY, {0, 0, 0}, {255, 0, 0}},
                    LayeredScreen{"KeyBlack", black, 0, LWA_COLORKEY, {255, 0, 0}, {255, 255, 255}},
                    LayeredScreen{"KeyWhiteAlpha120",
                                  white,
                                  120,
                                  LWA_COLORKEY | LWA_ALPHA,
                                  {blended(0, 255, 120), 0, 0},
                                  {255, 0, 0}},
                    LayeredScreen{"Alpha100",
                                  white,
                                  100,
                                  LWA_ALPHA,
                                  {blended(0, 255, 100), 0, 0},
                                  {255, blended(255, 0, 100), blended(255, 0, 100)}},
                    LayeredScreen{"Alpha0", 0, 0, LWA_ALPHA, {255, 0, 0}, {255, 0, 0}}),
    [](const auto& instance) { return instance.param.label; });

TEST_F(LayeredTest, ChangedAttributesShowWithoutAPaint) {
  SetLayeredWindowAttributes(layer_, white, 255, LWA_COLORKEY);
  settle();
  EXPECT_EQ(pixel(220, 200), red);
  recorder().only({WM_PAINT, WM_ERASEBKGND});
  SetLayeredWindowAttributes(layer_, white, 255, LWA_ALPHA);
  pump();
  EXPECT_EQ(pixel(220, 200), white);
  EXPECT_TRUE(log_is(""));
}

TEST_F(LayeredTest, PaintingWorksAsUsualAndMovingDoesNotRepaint) {
  SetLayeredWindowAttributes(layer_, white, 0, LWA_COLORKEY);
  settle();
  recorder().only({WM_PAINT, WM_ERASEBKGND});
  recorder().only_windows({"layer"});
  InvalidateRect(layer_, nullptr, TRUE);
  pump();
  EXPECT_TRUE(log_is("layer (q) WM_PAINT { WM_ERASEBKGND }"));
  recorder().clear();
  MoveWindow(layer_, 110, 105, 200, 150, TRUE);
  pump();
  EXPECT_TRUE(log_is(""));
  EXPECT_EQ(pixel(132, 127), black);
  EXPECT_EQ(pixel(125, 122), red) << "the former place of the square";
  MoveWindow(layer_, 110, 105, 220, 150, TRUE);
  pump();
  EXPECT_EQ(recorder().count("layer", WM_PAINT), 1);
}

class LayeredChildTest : public LayeredTest {
 protected:
  void SetUp() override {
    LayeredTest::SetUp();
    DestroyWindow(layer_);
    child_ = create("layer", {.parent = window("below"),
                              .style = WS_CHILD | WS_VISIBLE,
                              .place = {.width = 200, .height = 150},
                              .ex_style = WS_EX_LAYERED});
    EXPECT_NE(child_, nullptr);
    settle();
  }
  HWND child_ = nullptr;
};

TEST_F(LayeredChildTest, KeyPixelsPassToWhatIsBelow) {
  EXPECT_NE(SetLayeredWindowAttributes(child_, white, 0, LWA_COLORKEY), 0);
  pump();
  EXPECT_EQ(on_black(), "layer");
  EXPECT_EQ(on_white(), "below");
  EXPECT_EQ(pixel(130, 130), black);
  EXPECT_EQ(pixel(220, 200), red);
}

TEST_F(LayeredChildTest, TransparentOnePassesThrough) {
  SetLayeredWindowAttributes(child_, 0, 255, LWA_ALPHA);
  SetWindowLongW(child_, GWL_EXSTYLE, layered_style | static_cast<LONG>(WS_EX_TRANSPARENT));
  EXPECT_EQ(on_black(), "below");
}

}  // namespace
}  // namespace corvane::conformance
