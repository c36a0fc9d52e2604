// UpdateLayeredWindow.
#include "tests/platform/conformance/support/picture.h"
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

constexpr COLORREF red = RGB(255, 0, 0);

struct Update {
  std::uint32_t pixel = 0xFF00FF00;
  COLORREF key = 0;
  BYTE constant_alpha = 255;
  BYTE alpha_format = AC_SRC_ALPHA;
  DWORD flags = ULW_ALPHA;
};

class UpdateLayeredTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    create("below", {.style = WS_POPUP | WS_VISIBLE, .place = {100, 100, 200, 150}});
    paint_patches("below", {{{0, 0, 200, 150}, red}});
    layer_ = create("layer", {.parent = window("below"),
                              .style = WS_POPUP | WS_VISIBLE,
                              .place = {100, 100, 100, 100},
                              .ex_style = WS_EX_LAYERED});
    settle();
  }

  BOOL apply(const Picture& picture, const Update& update, POINT* position = nullptr) {
    SIZE size = picture.size();
    POINT source{0, 0};
    BLENDFUNCTION blend{AC_SRC_OVER, 0, update.constant_alpha, update.alpha_format};
    return UpdateLayeredWindow(layer_, nullptr, position, &size, picture.dc(), &source, update.key,
                               &blend, update.flags);
  }
  std::string pressed_at(int x, int y) {
    move_to(1270, 790);
    move_to(x, y);
    recorder().clear();
    recorder().only({WM_LBUTTONDOWN});
    press();
    std::string who;
    for (const LogLine& line : recorder().log()) who += line.text.substr(0, line.text.find(' '));
    release();
    return who;
  }
  HWND layer_ = nullptr;
};

TEST_F(UpdateLayeredTest, SetsContentPositionAndSizeWithoutAnyMessage) {
  const Picture picture(60, 40, 0xFF00FF00);
  POINT position{150, 160};
  EXPECT_NE(apply(picture, {}, &position), 0);
  pump();
  EXPECT_TRUE(log_is(""));
  EXPECT_EQ(text_of(window_rect(layer_)), "150,160,210,200");
  EXPECT_EQ(pixel(150, 160), RGB(0, 255, 0));
  EXPECT_EQ(pixel(209, 199), RGB(0, 255, 0));
  EXPECT_EQ(pixel(149, 160), red);
  EXPECT_EQ(pixel(210, 199), red);
}

TEST_F(UpdateLayeredTest, HiddenWindowStaysHiddenAndNeedsNoPaintWhenShown) {
  ShowWindow(layer_, SW_HIDE);
  settle();
  const Picture picture(60, 40, 0xFF00FF00);
  EXPECT_NE(apply(picture, {}), 0);
  EXPECT_EQ(IsWindowVisible(layer_), 0);
  EXPECT_EQ(pixel(110, 110), red);
  recorder().only({WM_PAINT, WM_ERASEBKGND});
  ShowWindow(layer_, SW_SHOW);
  pump();
  EXPECT_TRUE(log_is(""));
  EXPECT_EQ(pixel(110, 110), RGB(0, 255, 0));
}

struct UpdateCase {
  const char* label;
  Update update;
  const char* pressed;
  int seen[3];
};

class UpdateCaseTest : public UpdateLayeredTest, public testing::WithParamInterface<UpdateCase> {};

TEST_P(UpdateCaseTest, AlphaAndKeyDecideOnPixelAndPress) {
  const Picture picture(60, 40, GetParam().update.pixel);
  ASSERT_NE(apply(picture, GetParam().update), 0);
  pump();
  EXPECT_EQ(pressed_at(120, 120), GetParam().pressed);
  const auto& [r, g, b] = GetParam().seen;
  const COLORREF seen = pixel(120, 120);
  EXPECT_NEAR(GetRValue(seen), r, 1);
  EXPECT_NEAR(GetGValue(seen), g, 1);
  EXPECT_NEAR(GetBValue(seen), b, 1);
}

constexpr COLORREF green_key = RGB(0, 255, 0);

INSTANTIATE_TEST_SUITE_P(
    , UpdateCaseTest,
    testing::Values(
        UpdateCase{"OpaquePixel", {.pixel = 0xFF00FF00}, "layer", {0, 255, 0}},
        UpdateCase{"HalfPixel", {.pixel = 0x80008000}, "layer", {127, 128, 0}},
        UpdateCase{"AlphaOnePixel", {.pixel = 0x01000100}, "layer", {254, 1, 0}},
        UpdateCase{"ClearPixel", {.pixel = 0x00000000}, "below", {255, 0, 0}},
        UpdateCase{
            "ConstantZero", {.pixel = 0xFF00FF00, .constant_alpha = 0}, "below", {255, 0, 0}},
        UpdateCase{
            "ConstantHalf", {.pixel = 0xFF00FF00, .constant_alpha = 128}, "layer", {127, 128, 0}},
        UpdateCase{"ConstantOverHalfPixel",
                   {.pixel = 0x80008000, .constant_alpha = 128},
                   "layer",
                   {191, 64, 0}},
        UpdateCase{
            "ConstantOverClearPixel", {.pixel = 0, .constant_alpha = 200}, "below", {255, 0, 0}},
        UpdateCase{
            "KeyWithoutItsFlag", {.pixel = 0xFF00FF00, .key = green_key}, "layer", {0, 255, 0}},
        UpdateCase{
            "WithoutPixelAlpha", {.pixel = 0x0000FF00, .alpha_format = 0}, "layer", {0, 255, 0}},
        UpdateCase{"OpaqueFlag",
                   {.pixel = 0x0000FF00, .alpha_format = 0, .flags = ULW_OPAQUE},
                   "layer",
                   {0, 255, 0}},
        UpdateCase{
            "KeyedPixel",
            {.pixel = 0x0000FF00, .key = green_key, .alpha_format = 0, .flags = ULW_COLORKEY},
            "below",
            {255, 0, 0}},
        UpdateCase{
            "PixelBesideTheKey",
            {.pixel = 0x000000FF, .key = green_key, .alpha_format = 0, .flags = ULW_COLORKEY},
            "layer",
            {0, 0, 255}}),
    [](const auto& instance) { return instance.param.label; });

TEST_F(UpdateLayeredTest, EachPixelByItsOwnAlpha) {
  Picture picture(60, 40, 0);
  picture.fill({0, 0, 20, 40}, 0xFF0000FF);
  EXPECT_NE(apply(picture, {}), 0);
  EXPECT_EQ(pressed_at(110, 110), "layer");
  EXPECT_EQ(pressed_at(130, 110), "below");
  EXPECT_EQ(pressed_at(119, 139), "layer");
  EXPECT_EQ(pressed_at(120, 139), "below");
}

TEST_F(UpdateLayeredTest, LaterContentReplacesTheFormer) {
  EXPECT_NE(apply(Picture(60, 40, 0xFF00FF00), {}), 0);
  EXPECT_NE(apply(Picture(30, 30, 0xFF0000FF), {}), 0);
  EXPECT_EQ(text_of(window_rect(layer_)), "100,100,130,130");
  EXPECT_EQ(pixel(110, 110), RGB(0, 0, 255));
  EXPECT_EQ(pixel(140, 110), red);
}

TEST_F(UpdateLayeredTest, SourcePointChoosesThePart) {
  Picture picture(60, 40, 0xFF00FF00);
  picture.fill({30, 0, 60, 40}, 0xFF0000FF);
  SIZE size{30, 40};
  POINT source{30, 0};
  BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
  EXPECT_NE(UpdateLayeredWindow(layer_, nullptr, nullptr, &size, picture.dc(), &source, 0, &blend,
                                ULW_ALPHA),
            0);
  EXPECT_EQ(pixel(105, 105), RGB(0, 0, 255));
}

TEST_F(UpdateLayeredTest, WithoutTheStyleItFails) {
  SetWindowLongW(layer_, GWL_EXSTYLE, 0);
  SetLastError(0);
  EXPECT_EQ(apply(Picture(60, 40, 0xFF00FF00), {}), 0);
  EXPECT_EQ(GetLastError(), 87U);
}

TEST_F(UpdateLayeredTest, AfterAttributesItFailsUntilTheStyleIsSetAnew) {
  SetLayeredWindowAttributes(layer_, 0, 200, LWA_ALPHA);
  const Picture picture(60, 40, 0xFF00FF00);
  SetLastError(0);
  EXPECT_EQ(apply(picture, {}), 0);
  EXPECT_EQ(GetLastError(), 87U);
  SetWindowLongW(layer_, GWL_EXSTYLE, 0);
  SetWindowLongW(layer_, GWL_EXSTYLE, static_cast<LONG>(WS_EX_LAYERED));
  EXPECT_NE(apply(picture, {}), 0);
}

TEST_F(UpdateLayeredTest, NoSizeFails) {
  const Picture picture(10, 10, 0xFF00FF00);
  SIZE size{0, 0};
  POINT source{0, 0};
  BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
  SetLastError(0);
  EXPECT_EQ(UpdateLayeredWindow(layer_, nullptr, nullptr, &size, picture.dc(), &source, 0, &blend,
                                ULW_ALPHA),
            0);
  EXPECT_EQ(GetLastError(), 87U);
}

TEST_F(UpdateLayeredTest, StaleSourceFailsSoftly) {
  HDC stale = nullptr;
  {
    const Picture gone(10, 10, 0xFF00FF00);
    stale = gone.dc();
  }
  SIZE size{10, 10};
  POINT source{0, 0};
  BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
  EXPECT_EQ(
      UpdateLayeredWindow(layer_, nullptr, nullptr, &size, stale, &source, 0, &blend, ULW_ALPHA),
      0);
}

}  // namespace
}  // namespace corvane::conformance
