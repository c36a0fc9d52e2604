#include "tests/platform/gdi/gdi_fixture.h"
#include "tests/support/golden_file.h"

namespace corvane::system {
namespace {

class GdiLines : public GdiTest {
 protected:
  void draw(int width, const std::vector<POINT>& points) {
    const Selected pen(dc, CreatePen(PS_SOLID, width, RGB(255, 0, 0)));
    MoveToEx(dc, points.front().x, points.front().y, nullptr);
    for (std::size_t at = 1; at < points.size(); ++at) LineTo(dc, points[at].x, points[at].y);
  }
};

TEST_F(GdiLines, PensCoverExactPixels) {
  for (const auto& row : test::golden_rows("tests/platform/gdi/pen_lines.txt")) {
    const auto from = test::numbers_of(row.at(1)), to = test::numbers_of(row.at(2));
    wipe();
    draw(std::stoi(row.at(0)), {{from.at(0), from.at(1)}, {to.at(0), to.at(1)}});
    EXPECT_EQ(drawn(), row.at(3)) << row.at(0) << " from " << row.at(1) << " to " << row.at(2);
  }
}

TEST_F(GdiLines, FramesOfTheTwoPixelPenOvershootAtTheirFirstCorner) {
  draw(2, {{19, 15}, {60, 15}, {60, 45}, {20, 45}, {20, 14}});
  EXPECT_EQ(
      differing_from({{18, 14, 61, 16}, {19, 44, 61, 46}, {19, 13, 21, 46}, {59, 14, 61, 46}}), 0);
}

TEST_F(GdiLines, ObliqueWidePenIsAsWideAsItSays) {
  draw(10, {{20, 20}, {80, 80}});
  for (int row = 25; row < 75; ++row) {
    const auto in_row = [row](int, int y, Pixel color) { return y == row && color != kWhite; };
    EXPECT_NEAR(count(in_row), 14, 1) << "row " << row;  // 10 * sqrt(2)
  }
}

TEST_F(GdiLines, ObliqueLinesAreOneDamagedRectangle) {
  for (const int width : {1, 3}) {
    wipe();
    draw(width, {{10, 10}, {70, 40}});
    const Region marks = surface->take_marks();
    EXPECT_EQ(marks.count(), 1);
    EXPECT_TRUE(marks.covers({10, 10, 70, 40}));
    EXPECT_FALSE(marks.contains({75, 45}));
  }
}

TEST_F(GdiLines, CurrentPositionMovesAlsoWithoutAPen) {
  SelectObject(dc, GetStockObject(NULL_PEN));
  MoveToEx(dc, 3, 4, nullptr);
  LineTo(dc, 30, 40);
  POINT before{};
  MoveToEx(dc, 0, 0, &before);
  EXPECT_EQ(std::pair(before.x, before.y), std::pair(30, 40));
  EXPECT_EQ(drawn(), "nothing");
}

TEST_F(GdiLines, DashesLeaveGapsAndFillThemWhenOpaque) {
  const Selected pen(dc, CreatePen(PS_DOT, 1, RGB(255, 0, 0)));
  SetBkColor(dc, RGB(0, 0, 255));
  for (const auto& [mode, covered] :
       {std::pair(TRANSPARENT, "0,10,9,11 6"), std::pair(OPAQUE, "0,10,12,11 12")}) {
    SetBkMode(dc, mode);
    MoveToEx(dc, 0, 10, nullptr);
    LineTo(dc, 12, 10);
    EXPECT_EQ(drawn(), covered);
  }
}

TEST_F(GdiLines, ComplexClipAndOriginHold) {
  Region clip(RECT{0, 0, 40, 100});
  clip.unite(RECT{60, 0, 100, 100});
  HDC shifted = open(surface, {10, 10}, clip);
  for (const int width : {1, 2}) {
    wipe();
    const Selected pen(shifted, CreatePen(PS_SOLID, width, 0));
    MoveToEx(shifted, 0, 20, nullptr);
    LineTo(shifted, 80, 20);
    const int wider = width - 1;  // on each side but the lower and right one
    EXPECT_EQ(differing_from({{10 - wider, 30 - wider, 40, 31}, {60, 30 - wider, 90 + wider, 31}}),
              0);
    const Region marks = surface->take_marks();
    EXPECT_TRUE(marks.covers({10, 30, 40, 31}));
    EXPECT_FALSE(marks.intersects({40, 0, 60, 100}));
  }
}

}  // namespace
}  // namespace corvane::system
