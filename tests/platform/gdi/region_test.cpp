#include "corvane/platform/system/gdi/region.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace corvane::system {
namespace {

constexpr int kSide = 24;
using Grid = std::array<bool, kSide * kSide>;

template <class Contains>
Grid grid(Contains contains) {
  Grid result{};
  for (int at = 0; at < kSide * kSide; ++at) {
    result[static_cast<std::size_t>(at)] = contains(POINT{at % kSide, at / kSide});
  }
  return result;
}

Grid grid_of(const Region& region) {
  return grid([&region](POINT point) { return region.contains(point); });
}

Grid grid_of(const RECT& rect) {
  return grid([&rect](POINT point) {
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top &&
           point.y < rect.bottom;
  });
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
    const auto check = [&](auto change, auto combine) {
      for (const bool by_rect : {false, true}) {
        Region result = first;
        by_rect ? change(result, rect) : change(result, second);
        EXPECT_EQ(grid_of(result),
                  combined(grid_of(first), by_rect ? grid_of(rect) : grid_of(second), combine));
      }
    };
    check([](Region& region, const auto& other) { region.unite(other); },
          [](bool x, bool y) { return x || y; });
    check([](Region& region, const auto& other) { region.subtract(other); },
          [](bool x, bool y) { return x && !y; });
    check([](Region& region, const auto& other) { region.intersect(other); },
          [](bool x, bool y) { return x && y; });
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
