#include "corvane/platform/framework/rect.h"

#include <gtest/gtest.h>

#include <limits>

namespace corvane {

void PrintTo(const CRect& rect, std::ostream* out) {
  *out << "(" << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ")";
}

namespace {

constexpr int kLeast = std::numeric_limits<LONG>::min();
constexpr int kMost = std::numeric_limits<LONG>::max();

struct PairCase {
  const char* name;
  CRect a, b, common, around;
};

constexpr PairCase kPairs[] = {
    {"overlapping", {0, 0, 10, 10}, {5, 6, 20, 30}, {5, 6, 10, 10}, {0, 0, 20, 30}},
    {"inside", {0, 0, 10, 10}, {2, 3, 4, 5}, {2, 3, 4, 5}, {0, 0, 10, 10}},
    {"touching", {0, 0, 10, 10}, {10, 0, 20, 10}, {0, 0, 0, 0}, {0, 0, 20, 10}},
    {"apart", {0, 0, 1, 1}, {5, 5, 6, 6}, {0, 0, 0, 0}, {0, 0, 6, 6}},
    {"one empty", {1, 2, 3, 4}, {7, 7, 7, 9}, {0, 0, 0, 0}, {1, 2, 3, 4}},
    {"one inside out", {1, 2, 3, 4}, {9, 9, 0, 0}, {0, 0, 0, 0}, {1, 2, 3, 4}},
    {"both empty", {3, 3, 3, 3}, {4, 4, 1, 1}, {0, 0, 0, 0}, {0, 0, 0, 0}},
    {"everything",
     {kLeast, kLeast, kMost, kMost},
     {-5, -5, 5, 5},
     {-5, -5, 5, 5},
     {kLeast, kLeast, kMost, kMost}},
};

TEST(FrameworkRect, IntersectsAndUnites) {
  for (const PairCase& each : kPairs) {
    SCOPED_TRACE(each.name);
    for (const bool swapped : {false, true}) {
      const CRect& first = swapped ? each.b : each.a;
      const CRect& second = swapped ? each.a : each.b;
      CRect common(9, 9, 9, 9), around(9, 9, 9, 9);
      EXPECT_EQ(common.IntersectRect(first, second), !each.common.IsRectEmpty());
      EXPECT_EQ(common, each.common);
      EXPECT_EQ(around.UnionRect(first, second), !each.around.IsRectEmpty());
      EXPECT_EQ(around, each.around);
      EXPECT_EQ(first & second, each.common);
      EXPECT_EQ(first | second, each.around);
    }
    CRect own(each.a);
    own.IntersectRect(own, each.b);
    EXPECT_EQ(own, each.common) << "into itself";
  }
}

TEST(FrameworkRect, ContainsItsLeftAndTopEdgesOnly) {
  constexpr CRect rect(10, 20, 30, 40);
  const struct {
    CPoint point;
    bool inside;
  } cases[] = {{{10, 20}, true}, {{29, 39}, true},  {{30, 39}, false}, {{29, 40}, false},
               {{9, 20}, false}, {{10, 19}, false}, {{20, 30}, true}};
  for (const auto& each : cases) EXPECT_EQ(rect.PtInRect(each.point), each.inside);
  EXPECT_FALSE(CRect(30, 40, 10, 20).PtInRect({20, 30})) << "inside out";
}

TEST(FrameworkRect, TellsEmptyFromNull) {
  EXPECT_TRUE(CRect().IsRectNull());
  EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
  EXPECT_FALSE(CRect(5, 5, 5, 9).IsRectNull());
  EXPECT_TRUE(CRect(9, 0, 5, 9).IsRectEmpty());
  EXPECT_FALSE(CRect(0, 0, 1, 1).IsRectEmpty());
  EXPECT_EQ(CRect(static_cast<LPCRECT>(nullptr)), CRect());
}

TEST(FrameworkRect, NormalizesEachDirectionByItself) {
  const struct {
    CRect before, after;
  } cases[] = {{{5, 6, 1, 2}, {1, 2, 5, 6}},
               {{5, 2, 1, 6}, {1, 2, 5, 6}},
               {{1, 6, 5, 2}, {1, 2, 5, 6}},
               {{1, 2, 5, 6}, {1, 2, 5, 6}}};
  for (const auto& each : cases) {
    CRect rect = each.before;
    rect.NormalizeRect();
    EXPECT_EQ(rect, each.after);
  }
}

TEST(FrameworkRect, MovesAndResizesEdges) {
  CRect rect(10, 20, 30, 50);
  rect.OffsetRect(-3, 4);
  EXPECT_EQ(rect, CRect(7, 24, 27, 54));
  rect.InflateRect(1, 2, 3, 4);
  EXPECT_EQ(rect, CRect(6, 22, 30, 58));
  rect.DeflateRect(1, 2, 3, 4);
  EXPECT_EQ(rect, CRect(7, 24, 27, 54));
  rect.InflateRect(CSize(4, 4));
  rect.DeflateRect(4, 4);
  EXPECT_EQ(rect, CRect(7, 24, 27, 54));
  rect.MoveToXY(0, 1);
  EXPECT_EQ(rect, CRect(0, 1, 20, 31));
  EXPECT_EQ(rect + CPoint(2, 3) - CPoint(2, 3), rect);
  EXPECT_EQ(CRect(CPoint(1, 2), CSize(3, 4)), CRect(1, 2, 4, 6));
  EXPECT_EQ(rect.BottomRight() - rect.TopLeft(), rect.Size());
}

TEST(FrameworkRect, HalvesTowardZero) {
  EXPECT_EQ(CRect(-3, -5, 0, 0).CenterPoint(), CPoint(-1, -2));
  EXPECT_EQ(CRect(0, 0, 3, 5).CenterPoint(), CPoint(1, 2));
  EXPECT_EQ(CRect(kMost, kMost, kMost, kMost).CenterPoint(), CPoint(kMost, kMost));
}

// With the sanitizer for undefined behaviour these fail on any overflow.
TEST(FrameworkRect, WrapsAtTheEndsOfTheCoordinates) {
  EXPECT_EQ(CRect(kLeast, 0, kMost, 0).Width(), -1);
  CRect rect(kLeast, kLeast, kMost, kMost);
  rect.InflateRect(1, 1);
  EXPECT_EQ(rect, CRect(kMost, kMost, kLeast, kLeast));
  rect.DeflateRect(1, 1);
  rect.OffsetRect(CPoint(kLeast, kLeast));
  EXPECT_EQ(rect, CRect(0, 0, -1, -1));
  EXPECT_EQ(rect - CPoint(kLeast, kLeast), CRect(kLeast, kLeast, kMost, kMost));
  EXPECT_EQ(CPoint(kLeast, 0) - CPoint(1, 0), CSize(kMost, 0));
}

TEST(FrameworkRect, StandsWhereThePlatformWantsARectangle) {
  CRect rect(1, 2, 3, 4);
  const LPRECT writable = rect;
  const CRect fixed(rect);
  const LPCRECT readable = fixed;
  writable->right = 30;
  EXPECT_EQ(rect.right, 30);
  EXPECT_EQ(readable->right, 3);
  EXPECT_TRUE(rect != fixed);
  EXPECT_TRUE(fixed == RECT({1, 2, 3, 4}));
}

}  // namespace
}  // namespace corvane
