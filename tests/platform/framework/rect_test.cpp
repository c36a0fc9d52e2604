#include "corvane/platform/framework/rect.h"

#include <limits>

#include "tests/support/rects.h"

namespace corvane {

void PrintTo(const CRect& rect, std::ostream* out) { *out << test::text_of(rect); }

namespace {

constexpr int kLeast = std::numeric_limits<LONG>::min();
constexpr int kMost = std::numeric_limits<LONG>::max();

TEST(FrameworkRect, IntersectsAndUnites) {
  for (const auto& row : test::golden_rows("tests/platform/rect_pairs.txt")) {
    SCOPED_TRACE(row.at(0));
    CRect first = test::rect_of(row.at(1)), second = test::rect_of(row.at(2));
    const CRect common = test::rect_of(row.at(3)), around = test::rect_of(row.at(4));
    for (int turn = 0; turn < 2; ++turn, std::swap(first, second)) {
      CRect result(first);
      EXPECT_EQ(result.IntersectRect(result, second), !common.IsRectEmpty());
      EXPECT_EQ(result, common);
      EXPECT_EQ(result.UnionRect(first, second), !around.IsRectEmpty());
      EXPECT_EQ(result, around);
      EXPECT_EQ(first & second, common);
      EXPECT_EQ(first | second, around);
    }
  }
}

TEST(FrameworkRect, ContainsItsLeftAndTopEdgesOnly) {
  constexpr CRect rect(10, 20, 30, 40);
  for (const CPoint inside : {CPoint(10, 20), CPoint(29, 39)}) EXPECT_TRUE(rect.PtInRect(inside));
  for (const CPoint outside : {CPoint(30, 39), CPoint(29, 40), CPoint(9, 20), CPoint(10, 19)})
    EXPECT_FALSE(rect.PtInRect(outside));
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
  for (CRect rect : {CRect(5, 6, 1, 2), CRect(5, 2, 1, 6), CRect(1, 6, 5, 2), CRect(1, 2, 5, 6)}) {
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(1, 2, 5, 6));
  }
}

TEST(FrameworkRect, MovesAndResizesEdges) {
  CRect rect(10, 20, 30, 50);
  rect.OffsetRect(-3, 4);
  EXPECT_EQ(rect, CRect(7, 24, 27, 54));
  rect.InflateRect(1, 2, 3, 4);
  EXPECT_EQ(rect, CRect(6, 22, 30, 58));
  rect.DeflateRect(1, 2, 3, 4);
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
