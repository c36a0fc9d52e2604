#include "corvane/layers/crop/picture_mapping.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

#include "corvane/platform/geometry.h"
#include "tests/support/rects.h"

namespace {

using corvane::fit_picture;
using corvane::has_area;
using corvane::height_of;
using corvane::picture_pixels;
using corvane::width_of;
using corvane::test::is_rect;
using corvane::test::same_rect;

constexpr LONG lowest = std::numeric_limits<LONG>::min();
constexpr LONG highest = std::numeric_limits<LONG>::max();

struct MapCase {
  SIZE picture;
  RECT shown;
  RECT framed;
  RECT pixels;
};

TEST(FramedAt, Table) {
  constexpr RECT whole = {lowest, lowest, highest, highest};
  const struct {
    RECT framed, shown, shown_now, expected;
  } cases[] = {{{30, 40, 50, 70}, {10, 20, 110, 120}, {0, 0, 200, 50}, {40, 10, 80, 25}},
               {{30, 40, 50, 70}, {10, 20, 110, 120}, {10, 20, 110, 120}, {30, 40, 50, 70}},
               {{0, 10, 120, 5}, {10, 20, 110, 120}, {0, 0, 50, 33}, {-5, -3, 55, -5}},
               {{30, 40, 50, 70}, {10, 20, 10, 120}, {0, 0, 200, 50}, {30, 40, 50, 70}},
               {{30, 40, 50, 70}, {10, 20, 110, 120}, {0, 0, 0, 0}, {30, 40, 50, 70}},
               {whole, {0, 0, 1, 1}, whole, whole}};
  for (const auto& [framed, shown, shown_now, expected] : cases) {
    EXPECT_THAT(corvane::framed_at(framed, shown, shown_now), same_rect(expected));
  }
}

TEST(PicturePixels, Table) {
  constexpr RECT nothing = {0, 0, 0, 0};
  const std::vector<MapCase> cases = {
      {{640, 480}, {10, 20, 650, 500}, {110, 120, 210, 220}, {100, 100, 200, 200}},  // 1:1
      {{640, 480}, {10, 20, 330, 260}, {20, 30, 21, 31}, {20, 20, 22, 22}},          // half
      {{10, 10}, {0, 0, 100, 100}, {11, 19, 20, 21}, {1, 1, 2, 3}},                  // 10 times
      {{3, 3}, {0, 0, 10, 10}, {3, 4, 4, 6}, {0, 1, 2, 2}},  // pixel 0 ends at 3.33 in the view
      {{640, 480}, {10, 20, 330, 260}, {10, 20, 330, 260}, {0, 0, 640, 480}},
      {{640, 480}, {10, 20, 330, 260}, {-50, -50, 900, 900}, {0, 0, 640, 480}},
      {{640, 480}, {10, 20, 330, 260}, {-50, 250, 20, 900}, {0, 460, 20, 480}},
      {{640, 480}, {-100, -50, 220, 190}, {0, 0, 10, 10}, {200, 100, 220, 120}},  // scrolled
      {{640, 480}, {10, 20, 330, 260}, {330, 30, 400, 60}, nothing},              // beside
      {{640, 480}, {10, 20, 330, 260}, {0, 0, 10, 300}, nothing},
      {{640, 480}, {10, 20, 330, 260}, {50, 50, 50, 90}, nothing},  // empty
      {{3, 3}, {0, 0, 10, 10}, {4, 1, 4, 9}, nothing},              // inside of a pixel
      {{640, 480}, {10, 20, 330, 260}, {90, 50, 40, 90}, nothing},  // inverted
      {{640, 480}, {330, 260, 10, 20}, {50, 50, 90, 90}, nothing},
      {{0, 480}, {10, 20, 330, 260}, {50, 50, 90, 90}, nothing},
      {{640, -1}, {10, 20, 330, 260}, {50, 50, 90, 90}, nothing},
      {{highest, highest},
       {lowest, lowest, highest, highest},
       {lowest, lowest, highest, highest},
       {0, 0, highest, highest}},
      {{1, 1}, {lowest, lowest, highest, highest}, {0, 0, 1, 1}, {0, 0, 1, 1}}};
  for (const MapCase& test : cases) {
    EXPECT_THAT(picture_pixels(test.picture, test.shown, test.framed), same_rect(test.pixels))
        << "picture " << test.picture.cx << " x " << test.picture.cy << ", framed from "
        << test.framed.left << ", " << test.framed.top;
  }
}

// Pixel p of `size` fills p * length / size to (p + 1) * length / size along the view.
bool covers(std::int64_t size, std::int64_t length, std::int64_t first, std::int64_t last,
            std::int64_t pixel) {
  return pixel * length < last * size && (pixel + 1) * length > first * size;
}

// Along one side; the other is framed whole.
void expect_exactly_the_touched_pixels(LONG size, LONG length, LONG first, LONG last) {
  const RECT across =
      picture_pixels({size, 3}, {9, -4, 9 + length, 8}, {9 + first, -4, 9 + last, 8});
  const RECT down = picture_pixels({3, size}, {-4, 9, 8, 9 + length}, {-4, 9 + first, 8, 9 + last});
  ASSERT_THAT(across, is_rect(down.top, 0, down.bottom, 3));
  ASSERT_THAT(down, is_rect(0, across.left, 3, across.right));
  ASSERT_LT(across.left, across.right);
  for (const LONG inside : {across.left, across.right - 1}) {
    ASSERT_TRUE(covers(size, length, first, last, inside));
  }
  for (const LONG outside : {across.left - 1, across.right}) {
    ASSERT_FALSE(covers(size, length, first, last, outside));
  }
}

TEST(PicturePixels, HoldsExactlyThePixelsThatTheFrameTouches) {
  std::mt19937 random(7);
  const auto below = [&](LONG limit) {
    return static_cast<LONG>(random() % static_cast<unsigned>(limit));
  };
  for (const LONG largest : {40, 31607, 100000000}) {
    for (int round = 0; round < 3000; ++round) {
      const LONG length = 1 + below(largest < 100 ? 90 : 5000);
      const LONG first = below(length);
      const LONG size = round == 0 ? largest : 1 + below(largest);
      expect_exactly_the_touched_pixels(size, length, first, first + 1 + below(length - first));
    }
  }
}

TEST(FitPicture, Table) {
  struct FitCase {
    SIZE picture;
    RECT area;
    RECT shown;
  };
  const std::vector<FitCase> cases = {
      {{400, 300}, {0, 0, 800, 600}, {200, 150, 600, 450}},  // small: its own size
      {{800, 600}, {0, 0, 800, 600}, {0, 0, 800, 600}},
      {{1600, 600}, {0, 0, 800, 600}, {0, 150, 800, 450}},
      {{800, 1200}, {0, 0, 800, 600}, {200, 0, 600, 600}},
      {{4000, 3000}, {100, 50, 900, 650}, {100, 50, 900, 650}},
      {{1000, 334}, {0, 0, 100, 100}, {0, 33, 100, 66}},  // 33.4 high
      {{1000, 335}, {0, 0, 100, 100}, {0, 33, 100, 67}},  // 33.5
      {{334, 1000}, {0, 0, 100, 100}, {33, 0, 66, 100}},
      {{335, 1000}, {0, 0, 100, 100}, {33, 0, 67, 100}},
      {{200, 99}, {0, 0, 100, 50}, {0, 0, 100, 50}},
      {{100000, 10}, {0, 0, 100, 100}, {0, 49, 100, 50}},  // never thinner than a pixel
      {{10, 100000}, {0, 0, 1, 100}, {0, 0, 1, 100}},
      {{5, 5}, {0, 0, 8, 8}, {1, 1, 6, 6}},
      {{5, 5}, {-9, -9, -1, -1}, {-8, -8, -3, -3}},
      {{1, 1}, {0, 0, 7, 5}, {3, 2, 4, 3}},
      {{0, 5}, {0, 0, 8, 8}, {0, 0, 0, 0}},
      {{5, 0}, {0, 0, 8, 8}, {0, 0, 0, 0}},
      {{5, 5}, {8, 0, 8, 8}, {0, 0, 0, 0}},
      {{highest, highest},
       {lowest, lowest, highest, highest},
       {lowest / 2, lowest / 2, highest / 2, highest / 2}}};
  for (const FitCase& test : cases) {
    EXPECT_THAT(fit_picture(test.picture, test.area), same_rect(test.shown))
        << test.picture.cx << " x " << test.picture.cy;
  }
}

}  // namespace
