#include "corvane/platform/system/gdi/surface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace corvane::system {
namespace {

// What a surface must equal.
struct PlainPixels {
  int width, height;
  std::vector<Pixel> pixels;

  PlainPixels(int w, int h, Pixel color)
      : width(w), height(h), pixels(static_cast<std::size_t>(w * h), color) {}
  Pixel& at(int x, int y) { return pixels[static_cast<std::size_t>(y * width + x)]; }
  void fill(const RECT& rect, Pixel color) {
    for (int y = std::max(0, rect.top); y < std::min(height, rect.bottom); ++y)
      for (int x = std::max(0, rect.left); x < std::min(width, rect.right); ++x) at(x, y) = color;
  }
  PlainPixels resized(int w, int h) {
    PlainPixels result(w, h, 0);
    for (int y = 0; y < std::min(h, height); ++y)
      for (int x = 0; x < std::min(w, width); ++x) result.at(x, y) = at(x, y);
    return result;
  }
};

std::vector<Pixel> pixels_of(const Surface& surface) {
  std::vector<Pixel> all, scratch;
  for (int y = 0; y < surface.height(); ++y) {
    const Pixel* row = surface.read_row(y, scratch);
    all.insert(all.end(), row, row + surface.width());
  }
  return all;
}

TEST(GdiSurface, EqualsPlainPixelsUnderRandomWork) {
  std::mt19937 random{7};
  const auto below = [&random](int limit) {
    return static_cast<int>(random() % static_cast<unsigned>(limit));
  };
  using Order = Surface::RowOrder;
  for (int round = 0; round < 180; ++round) {
    const bool pinned = round % 3 != 0;
    const int width = 1 + below(20), height = 1 + below(20);
    Surface surface(width, height, 3);
    PlainPixels plain(width, height, 3);
    if (pinned) surface.pin(round % 3 == 1 ? Order::TopDown : Order::BottomUp);
    for (int step = 0; step < 30; ++step) {
      const auto color = static_cast<Pixel>(below(3));
      RECT rect{below(30) - 5, below(30) - 5, below(30) - 5, below(30) - 5};
      if (below(3) == 0) rect = {0, rect.top, plain.width, rect.bottom};
      if (below(8) == 0) rect = surface.rect();
      surface.fill(rect, color);
      plain.fill(rect, color);
      const int y = below(plain.height);
      if (below(3) == 0) surface.row(y)[plain.width - 1] = plain.at(plain.width - 1, y) = 9;
      if (!pinned && below(10) == 0) {
        const int new_width = 1 + below(20), new_height = 1 + below(20);
        surface.resize(new_width, new_height);
        plain = plain.resized(new_width, new_height);
      }
      ASSERT_EQ(pixels_of(surface), plain.pixels) << "round " << round << " step " << step;
      ASSERT_EQ(surface.at(0, 0), plain.at(0, 0));
      const Surface copy(surface);
      ASSERT_EQ(pixels_of(copy), plain.pixels);
    }
  }
}

TEST(GdiSurface, WholeRowsOfOneColourHoldNoPixels) {
  Surface surface(50, 40, 5);
  surface.fill({10, 10, 20, 12}, 6);
  EXPECT_EQ(surface.row_if_stored(9), nullptr);
  EXPECT_NE(surface.row_if_stored(10), nullptr);
  EXPECT_EQ(surface.uniform_row(9), 5u);
  EXPECT_FALSE(surface.uniform().has_value());
  surface.fill({0, 10, 50, 12}, 5);
  EXPECT_EQ(surface.uniform(), 5u);
  surface.fill({0, 0, 50, 20}, 7);
  EXPECT_FALSE(surface.uniform().has_value());
  surface.fill({0, 20, 50, 40}, 7);
  EXPECT_EQ(surface.uniform(), 7u);
}

TEST(GdiSurface, PinnedPixelsStayAtTheirAddress) {
  Surface surface(4, 3);
  Pixel* first = surface.pin(Surface::RowOrder::BottomUp);
  surface.fill(surface.rect(), 8);
  first[0] = 1;  // the lowest row in a bottom-up picture
  EXPECT_EQ(surface.at(0, 2), 1u);
  EXPECT_EQ(first[4 * 3 - 1], 8u);
}

TEST(GdiSurface, HugeAndNegativeSizesAreHeld) {
  EXPECT_EQ(Surface(-5, 10).width(), 0);
  const Surface huge(2000000000, 2);
  EXPECT_EQ(huge.width(), 65535);
  Surface nothing(0, 0);
  nothing.fill({-5, -5, 5, 5}, 1);
  EXPECT_EQ(nothing.row(0), nullptr);
  EXPECT_EQ(nothing.at(0, 0), 0u);
}

TEST(GdiSurface, MarksAreClippedTakenOnceAndStayFew) {
  Surface surface(1000, 1000);
  surface.mark(RECT{-5, -5, 3, 3});
  surface.mark(RECT{998, 998, 1050, 1050});
  const Region two = surface.take_marks();
  EXPECT_EQ(two.count(), 2);
  EXPECT_TRUE(two.covers({0, 0, 3, 3}));
  EXPECT_TRUE(two.covers({998, 998, 1000, 1000}));
  EXPECT_TRUE(surface.take_marks().empty());
  for (int at = 0; at < 1000; at += 2) surface.mark(RECT{at, at, at + 1, at + 1});
  const Region many = surface.take_marks();
  EXPECT_LE(many.count(), 64);
  for (int at = 0; at < 1000; at += 2) EXPECT_TRUE(many.contains({at, at}));
}

}  // namespace
}  // namespace corvane::system
