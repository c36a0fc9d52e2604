#include "apps/capture/picture_zoom.h"

#include <gtest/gtest.h>

#include "tests/support/rects.h"

namespace capture {
namespace {

using corvane::test::text_of;

constexpr RECT kArea{0, 0, 800, 400};

TEST(PictureZoom, ShowsThisPartAtThisSize) {
  struct Step {
    char kind;  // + - 1 0: zoom at the point; p: pan by it
    POINT point;
  };
  constexpr POINT kMiddle{400, 200};
  const struct {
    SIZE picture;
    std::vector<Step> steps;
    RECT shown;
  } cases[] = {
      {{400, 200}, {}, {200, 100, 600, 300}},
      {{400, 200}, {{'+', kMiddle}, {'+', kMiddle}, {'+', kMiddle}}, {0, 0, 800, 400}},
      {{400, 200}, {{'+', kMiddle}, {'-', {0, 0}}}, {200, 100, 600, 300}},
      {{400, 200}, {{'-', kMiddle}}, {200, 100, 600, 300}},      // never smaller than fitted
      {{1600, 800}, {{'1', kMiddle}}, {-400, -200, 1200, 600}},  // fitted: a half
      {{1600, 800}, {{'+', {0, 0}}, {'+', {0, 0}}, {'+', {0, 0}}}, {0, 0, 1600, 800}},
      {{1600, 800}, {{'1', {600, 400}}, {'p', {-100, 50}}}, {-700, -350, 900, 450}},
      {{1600, 800}, {{'1', kMiddle}, {'p', {9999, -9999}}}, {0, -400, 1600, 400}},
      {{1600, 800}, {{'1', kMiddle}, {'0', {}}}, {0, 0, 800, 400}},
      {{800, 4000}, {{'1', kMiddle}}, {0, -1800, 800, 2200}},
      {{100, 4000}, {{'1', kMiddle}, {'p', {50, -5000}}}, {350, -3600, 450, 400}},
      {{10, 10}, std::vector<Step>(99, {'+', kMiddle}), {240, 40, 560, 360}},  // 32 times at most
      {{0, 0}, {{'+', kMiddle}, {'1', kMiddle}, {'p', {5, 5}}}, {0, 0, 0, 0}},
  };
  for (const auto& [picture, steps, shown] : cases) {
    CPictureZoom zoom;
    zoom.SetPicture(picture);
    for (const auto& [kind, point] : steps) {
      if (kind == '+' || kind == '-') zoom.ZoomBy(kind == '+' ? 1 : -1, point, kArea);
      if (kind == '1') zoom.ZoomToOwnSize(point, kArea);
      if (kind == '0') zoom.Fit();
      if (kind == 'p') zoom.Pan({point.x, point.y}, kArea);
    }
    EXPECT_EQ(text_of(zoom.Shown(kArea)), text_of(shown))
        << picture.cx << 'x' << picture.cy << ", " << steps.size() << " steps";
  }
}

TEST(PictureZoom, AnotherAreaKeepsTheScaleAndLeavesNoMoreEmptyThanItMust) {
  CPictureZoom zoom;
  zoom.SetPicture({1600, 800});
  zoom.ZoomToOwnSize({400, 200}, kArea);
  EXPECT_EQ(text_of(zoom.Shown({0, 0, 1700, 400})), text_of({50, -200, 1650, 600}));
  EXPECT_EQ(text_of(zoom.Shown({10, 0, 1010, 1000})), text_of({-290, 100, 1310, 900}));
  EXPECT_EQ(text_of(zoom.Shown({0, 0, 3200, 1600})), text_of({800, 400, 2400, 1200}));
  EXPECT_EQ(text_of(zoom.Shown(kArea)), text_of({-400, -200, 1200, 600})) << "and back";
}

}  // namespace
}  // namespace capture
