// UpdateLayeredWindow.
#include "tests/platform/conformance/support/layered_test.h"
#include "tests/platform/conformance/support/picture.h"

namespace corvane::conformance {
namespace {

constexpr std::uint32_t kGreenPixel = 0xFF00FF00;
constexpr std::uint32_t kBluePixel = 0xFF0000FF;

struct Update {
  std::uint32_t pixel = kGreenPixel;
  COLORREF key = 0;
  BYTE constant = 255;
  BYTE format = AC_SRC_ALPHA;
  DWORD flags = ULW_ALPHA;
};

class UpdateLayeredTest : public LayeredTest {
 protected:
  BOOL apply(const Picture& picture, const Update& update = {}, POINT* position = nullptr) {
    return apply_part(picture.dc(), picture.size(), {0, 0}, update, position);
  }
  BOOL apply_part(HDC dc, SIZE size, POINT source, const Update& update = {},
                  POINT* position = nullptr) {
    BLENDFUNCTION blend{AC_SRC_OVER, 0, update.constant, update.format};
    SetLastError(0);
    return UpdateLayeredWindow(layer_, nullptr, position, &size, dc, &source, update.key, &blend,
                               update.flags);
  }
};

TEST_F(UpdateLayeredTest, SetsContentPositionAndSizeWithoutAnyMessage) {
  POINT position{150, 160};
  EXPECT_NE(apply(Picture(60, 40, kGreenPixel), {}, &position), 0);
  pump();
  step("all three");
  EXPECT_EQ(pixel(150, 160), kGreen);
  EXPECT_EQ(pixel(209, 199), kGreen);
  EXPECT_EQ(pixel(149, 160), kRed);
  EXPECT_EQ(pixel(210, 199), kRed);
  EXPECT_NE(apply(Picture(30, 30, kBluePixel)), 0);
  step("later content replaces the former");
  EXPECT_EQ(pixel(160, 170), kBlue);
  EXPECT_EQ(pixel(190, 170), kRed);
  position = {110, 120};
  EXPECT_NE(UpdateLayeredWindow(layer_, nullptr, &position, nullptr, nullptr, nullptr, 0, nullptr,
                                ULW_ALPHA),
            0);
  step("moved with its content");
  EXPECT_EQ(pixel(111, 121), kBlue);
}

TEST_F(UpdateLayeredTest, HiddenWindowStaysHiddenAndNeedsNoPaintWhenShown) {
  ShowWindow(layer_, SW_HIDE);
  settle();
  EXPECT_NE(apply(Picture(60, 40, kGreenPixel)), 0);
  EXPECT_EQ(pixel(110, 110), kRed);
  recorder().only({WM_PAINT, WM_ERASEBKGND});
  step("updated");
  ShowWindow(layer_, SW_SHOW);
  pump();
  step("shown");
  EXPECT_EQ(pixel(110, 110), kGreen);
}

struct UpdateCase {
  const char* label;
  Update update;
  const char* pressed;
  int seen[3];
};

TEST_F(UpdateLayeredTest, AlphaAndKeyDecideOnPixelAndPress) {
  const Update keyed = {.key = kGreen, .format = 0, .flags = ULW_COLORKEY};
  Update green = keyed;
  green.pixel = 0x0000FF00;
  Update blue = keyed;
  blue.pixel = 0x000000FF;
  for (const UpdateCase& given : {
           UpdateCase{"opaque pixel", {}, "layer", {0, 255, 0}},
           UpdateCase{"half pixel", {.pixel = 0x80008000}, "layer", {127, 128, 0}},
           UpdateCase{"alpha of one", {.pixel = 0x01000100}, "layer", {254, 1, 0}},
           UpdateCase{"clear pixel", {.pixel = 0}, "below", {255, 0, 0}},
           UpdateCase{"constant zero", {.constant = 0}, "below", {255, 0, 0}},
           UpdateCase{"constant half", {.constant = 128}, "layer", {127, 128, 0}},
           UpdateCase{"both half", {.pixel = 0x80008000, .constant = 128}, "layer", {191, 64, 0}},
           UpdateCase{"constant, clear pixel", {.pixel = 0, .constant = 200}, "below", {255, 0, 0}},
           UpdateCase{"key without its flag", {.key = kGreen}, "layer", {0, 255, 0}},
           UpdateCase{
               "without pixel alpha", {.pixel = 0x0000FF00, .format = 0}, "layer", {0, 255, 0}},
           UpdateCase{"opaque flag",
                      {.pixel = 0x0000FF00, .format = 0, .flags = ULW_OPAQUE},
                      "layer",
                      {0, 255, 0}},
           UpdateCase{"keyed pixel", green, "below", {255, 0, 0}},
           UpdateCase{"beside the key", blue, "layer", {0, 0, 255}},
       }) {
    SCOPED_TRACE(given.label);
    EXPECT_NE(apply(Picture(60, 40, given.update.pixel), given.update), 0);
    pump();
    EXPECT_EQ(pressed_at(120, 120), given.pressed);
    const auto& [r, g, b] = given.seen;
    const COLORREF seen = pixel(120, 120);
    EXPECT_NEAR(GetRValue(seen), r, 1);
    EXPECT_NEAR(GetGValue(seen), g, 1);
    EXPECT_NEAR(GetBValue(seen), b, 1);
  }
}

TEST_F(UpdateLayeredTest, EachPixelByItsOwnAlpha) {
  Picture picture(60, 40, 0);
  picture.fill({0, 0, 20, 30}, kBluePixel);
  EXPECT_NE(apply(picture), 0);
  EXPECT_EQ(pressed_at(110, 110), "layer");
  EXPECT_EQ(pressed_at(130, 110), "below");
  EXPECT_EQ(pressed_at(119, 129), "layer");
  EXPECT_EQ(pressed_at(120, 129), "below");
  EXPECT_NE(apply_part(picture.dc(), {30, 20}, {10, 20}), 0);
  EXPECT_EQ(pressed_at(109, 109), "layer") << "the source point chooses the part";
  EXPECT_EQ(pressed_at(110, 109), "below");
  EXPECT_EQ(pressed_at(109, 110), "below");
}

TEST_F(UpdateLayeredTest, RefusesWhatItCannotShow) {
  const Picture picture(60, 40, kGreenPixel);
  EXPECT_EQ(apply_part(picture.dc(), {0, 0}, {0, 0}), 0);
  EXPECT_EQ(GetLastError(), 87U);
  HDC stale = nullptr;
  {
    const Picture gone(10, 10, kGreenPixel);
    stale = gone.dc();
  }
  EXPECT_EQ(apply_part(stale, {10, 10}, {0, 0}), 0);
  set_extended_style(0);
  EXPECT_EQ(apply(picture), 0) << "without the style";
  EXPECT_EQ(GetLastError(), 87U);
  set_extended_style(WS_EX_LAYERED);
  SetLayeredWindowAttributes(layer_, 0, 200, LWA_ALPHA);
  EXPECT_EQ(apply(picture), 0) << "after attributes";
  EXPECT_EQ(GetLastError(), 87U);
  set_extended_style(0);
  set_extended_style(WS_EX_LAYERED);
  EXPECT_NE(apply(picture), 0) << "until the style is set anew";
}

}  // namespace
}  // namespace corvane::conformance
