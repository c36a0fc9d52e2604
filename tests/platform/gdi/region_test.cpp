#include "corvane/platform/system/gdi/region.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace corvane::system {
namespace {

constexpr int kSide = 24;
using Grid = std::array<bool, kSide * kSide>;

Grid grid_of(const Region& region) {
  Grid grid{};
  for (int y = 0; y < kSide; ++y)
    for (int x = 0; x < kSide; ++x)
      grid[static_cast<std::size_t>(y * kSide + x)] = region.contains({x, y});
  return grid;
}

Grid grid_of(const RECT& rect) {
  Grid grid{};
  for (int y = 0; y < kSide; ++y)
    for (int x = 0; x < kSide; ++x)
      grid[static_cast<std::size_t>(y * kSide + x)] =
          x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
  return grid;
}

template <class Combine>
Grid combined(const Grid& first, const Grid& second, Combine combine) {
  Grid grid{};
  for (std::size_t at = 0; at < grid.size(); ++at) grid[at] = combine(first[at], second[at]);
  return grid;
}

class RandomRects {
 public:
  RECT next() {  // now and then empty or inverted
    return {at_(random_), at_(random_), at_(random_), at_(random_)};
  }
  Region region(int rects) {
    Region region;
    for (int count = 0; count < rects; ++count) region.unite(next());
    return region;
  }
  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

 private:
  std::mt19937 random_{20240501};
  std::uniform_int_distribution<int> at_{0, kSide};
};

TEST(GdiRegion, SetOperationsMatchPixelSets) {
  RandomRects random;
  for (int round = 0; round < 300; ++round) {
    const Region first = random.region(random.below(5));
    const Region second = random.region(random.below(5));
    const RECT rect = random.next();
    const Grid a = grid_of(first);
    const Grid b = grid_of(second);
    const Grid r = grid_of(rect);
    const auto unite = [](bool x, bool y) { return x || y; };
    const auto subtract = [](bool x, bool y) { return x && !y; };
    const auto intersect = [](bool x, bool y) { return x && y; };
    Region result = first;
    result.unite(second);
    EXPECT_EQ(grid_of(result), combined(a, b, unite));
    result = first;
    result.subtract(second);
    EXPECT_EQ(grid_of(result), combined(a, b, subtract));
    result = first;
    result.intersect(second);
    EXPECT_EQ(grid_of(result), combined(a, b, intersect));
    result = first;
    result.unite(rect);
    EXPECT_EQ(grid_of(result), combined(a, r, unite));
    result = first;
    result.subtract(rect);
    EXPECT_EQ(grid_of(result), combined(a, r, subtract));
    result = first;
    result.intersect(rect);
    EXPECT_EQ(grid_of(result), combined(a, r, intersect));
  }
}

TEST(GdiRegion, PiecesAreDisjointAndAddUp) {
  RandomRects random;
  for (int round = 0; round < 200; ++round) {
    const Region region = random.region(6);
    int covered = 0;
    for (const bool inside : grid_of(region)) covered += inside;
    int area = 0;
    Region rebuilt;
    for (const RECT& piece : region.rects()) {
      area += (piece.right - piece.left) * (piece.bottom - piece.top);
      EXPECT_FALSE(rebuilt.intersects(piece));
      EXPECT_TRUE(region.covers(piece));
      rebuilt.unite(piece);
    }
    EXPECT_EQ(area, covered);
    EXPECT_EQ(grid_of(rebuilt), grid_of(region));
    EXPECT_EQ(region.empty(), covered == 0);
  }
}

TEST(GdiRegion, RectangleQueriesMatchPixelSets) {
  RandomRects random;
  for (int round = 0; round < 300; ++round) {
    const Region region = random.region(3);
    const RECT rect = random.next();
    const Grid inside =
        combined(grid_of(region), grid_of(rect), [](bool x, bool y) { return x && y; });
    EXPECT_EQ(region.intersects(rect), inside != Grid{});
    EXPECT_EQ(region.covers(rect), inside == grid_of(rect));
  }
}

TEST(GdiRegion, TranslateMovesBoundsAndEmptyStaysEmpty) {
  Region region(RECT{1, 2, 11, 12});
  region.subtract(RECT{3, 4, 5, 6});
  region.translate(-5, 7);
  EXPECT_EQ(region.bounds().left, -4);
  EXPECT_EQ(region.bounds().bottom, 19);
  EXPECT_FALSE(region.contains({-2, 11}));
  Region empty;
  empty.translate(5, 5);
  EXPECT_TRUE(empty.empty());
  EXPECT_EQ(empty.bounds().right, 0);
}

TEST(GdiRegion, ExtremeRectanglesDoNotOverflow) {
  constexpr LONG kMost = 0x7FFFFFFF;
  Region region(RECT{-kMost - 1, -kMost - 1, kMost, kMost});
  EXPECT_TRUE(region.covers({-1000000, -1000000, 1000000, 1000000}));
  region.intersect(RECT{5, 5, kMost, 7});
  EXPECT_EQ(region.bounds().left, 5);
  EXPECT_TRUE(Region(RECT{10, 10, -kMost, 20}).empty());
}

}  // namespace
}  // namespace corvane::system
