#include "corvane/platform/system/gdi/surface.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace corvane::system {
namespace {

using Rows = std::vector<std::vector<Pixel>>;

Rows rows_of(const Surface& surface) {
  Rows rows;
  std::vector<Pixel> scratch;
  for (int y = 0; y < surface.height(); ++y) {
    const Pixel* row = surface.read_row(y, scratch);
    rows.emplace_back(row, row + surface.width());
  }
  return rows;
}

TEST(GdiSurface, EqualsPlainRowsUnderRandomWork) {
  std::mt19937 random{7};
  const auto below = [&random](int limit) {
    return static_cast<int>(random() % static_cast<unsigned>(limit));
  };
  using Order = Surface::RowOrder;
  for (int round = 0; round < 180; ++round) {
    const bool pinned = round % 3 != 0;
    Surface surface(1 + below(20), 1 + below(20), 3);
    Rows plain = rows_of(surface);
    if (pinned) surface.pin(round % 3 == 1 ? Order::top_down : Order::bottom_up);
    for (int step = 0; step < 30; ++step) {
      const auto color = static_cast<Pixel>(below(3));
      RECT rect{below(30) - 5, below(30) - 5, below(30) - 5, below(30) - 5};
      if (below(3) == 0) rect = {0, rect.top, surface.width(), rect.bottom};
      if (below(8) == 0) rect = surface.rect();
      surface.fill(rect, color);
      for (int y = 0; y < surface.height(); ++y)
        for (int x = 0; x < surface.width(); ++x)
          if (PtInRect(&rect, {x, y}))
            plain.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x)) = color;
      const int y = below(surface.height());
      if (below(3) == 0)
        surface.row(y)[surface.width() - 1] = plain.at(static_cast<std::size_t>(y)).back() = 9;
      if (!pinned && below(10) == 0) {
        surface.resize(1 + below(20), 1 + below(20));
        plain.resize(static_cast<std::size_t>(surface.height()));
        for (auto& row : plain) row.resize(static_cast<std::size_t>(surface.width()));
      }
      ASSERT_EQ(rows_of(surface), plain) << "round " << round << " step " << step;
      ASSERT_EQ(surface.at(0, 0), plain.front().front());
      const Surface copy(surface);
      ASSERT_EQ(rows_of(copy), plain);
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
  Pixel* first = surface.pin(Surface::RowOrder::bottom_up);
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
