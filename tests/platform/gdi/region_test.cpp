#include "corvane/platform/system/gdi/region.h"

#include <bitset>
#include <random>

#include "tests/support/rects.h"

namespace corvane::system {
namespace {

constexpr int kSide = 24;
using Grid = std::bitset<kSide * kSide>;

template <class Contains>
Grid grid(Contains contains) {
  Grid result;
  for (int at = 0; at < kSide * kSide; ++at) {
    result[static_cast<std::size_t>(at)] = contains(POINT{at % kSide, at / kSide});
  }
  return result;
}

Grid grid_of(const Region& region) {
  return grid([&region](POINT point) { return region.contains(point); });
}

Grid grid_of(const RECT& rect) {
  return grid([&rect](POINT point) { return PtInRect(&rect, point); });
}

class RandomRects {
 public:
  RECT next() {  // now and then empty or inverted
    return {at_(random_), at_(random_), at_(random_), at_(random_)};
  }
  Region region(int most) {
    Region region;
    for (int count = at_(random_) % (most + 1); count > 0; --count) region.unite(next());
    return region;
  }

 private:
  std::mt19937 random_{20240501};
  std::uniform_int_distribution<int> at_{0, kSide};
};

TEST(GdiRegion, OperationsAndQueriesMatchPixelSets) {
  RandomRects random;
  for (int round = 0; round < 300; ++round) {
    const Region region = random.region(4);
    const Grid inside = grid_of(region);
    const auto check = [&](const auto& other) {
      const Grid inside_other = grid_of(other);
      Region united = region, rest = region, common = region;
      united.unite(other);
      rest.subtract(other);
      common.intersect(other);
      EXPECT_EQ(grid_of(united), inside | inside_other);
      EXPECT_EQ(grid_of(rest), inside & ~inside_other);
      EXPECT_EQ(grid_of(common), inside & inside_other);
    };
    check(random.region(4));
    const RECT rect = random.next();
    check(rect);
    EXPECT_EQ(region.intersects(rect), (inside & grid_of(rect)).any());
    EXPECT_EQ(region.covers(rect), (inside & grid_of(rect)) == grid_of(rect));
  }
}

TEST(GdiRegion, PiecesAreDisjointAndAddUp) {
  RandomRects random;
  for (int round = 0; round < 200; ++round) {
    const Region region = random.region(6);
    std::size_t area = 0;
    Region rebuilt;
    for (const RECT& piece : region.rects()) {
      area += grid_of(piece).count();
      EXPECT_FALSE(rebuilt.intersects(piece));
      EXPECT_TRUE(region.covers(piece));
      rebuilt.unite(piece);
    }
    EXPECT_EQ(area, grid_of(region).count());
    EXPECT_EQ(grid_of(rebuilt), grid_of(region));
    EXPECT_EQ(region.empty(), area == 0);
  }
}

TEST(GdiRegion, TranslateMovesBoundsAndEmptyStaysEmpty) {
  Region region(RECT{1, 2, 11, 12});
  region.subtract(RECT{3, 4, 5, 6});
  region.translate(-5, 7);
  EXPECT_THAT(region.bounds(), test::is_rect(-4, 9, 6, 19));
  EXPECT_FALSE(region.contains({-2, 11}));
  Region empty;
  empty.translate(5, 5);
  EXPECT_TRUE(empty.empty());
  EXPECT_THAT(empty.bounds(), test::is_rect(0, 0, 0, 0));
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
