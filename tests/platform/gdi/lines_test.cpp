#include "tests/platform/gdi/gdi_fixture.h"

namespace corvane::system {
namespace {

class GdiLines : public GdiTest {
 protected:
  void draw(int width, const std::vector<POINT>& points, COLORREF color = RGB(255, 0, 0)) {
    HPEN pen = CreatePen(PS_SOLID, width, color);
    HGDIOBJ before = SelectObject(dc, pen);
    MoveToEx(dc, points.front().x, points.front().y, nullptr);
    for (std::size_t at = 1; at < points.size(); ++at) LineTo(dc, points[at].x, points[at].y);
    SelectObject(dc, before);
    DeleteObject(pen);
  }
};

TEST_F(GdiLines, PensCoverExactPixels) {
  struct {
    int width;
    POINT from;
    POINT to;
    const char* covered;  // box and number of pixels
  } const cases[] = {
      {1, {10, 20}, {30, 20}, "10,20,30,21 20"},
      {0, {10, 20}, {30, 20}, "10,20,30,21 20"},
      {1, {30, 20}, {10, 20}, "11,20,31,21 20"},
      {1, {10, 20}, {10, 30}, "10,20,11,30 10"},
      {1, {10, 30}, {10, 20}, "10,21,11,31 10"},
      {1, {10, 20}, {10, 20}, "nothing"},
      {1, {10, 10}, {20, 20}, "10,10,20,20 10"},
      {1, {10, 10}, {20, 15}, "10,10,20,16 10"},
      {2, {10, 20}, {30, 20}, "9,19,31,21 44"},
      {2, {30, 20}, {10, 20}, "9,19,31,21 44"},
      {2, {10, 20}, {10, 30}, "9,19,11,31 24"},
      {2, {10, 20}, {10, 20}, "9,19,11,21 4"},
      {3, {10, 20}, {30, 20}, "9,19,32,22 65"},
      {3, {20, 10}, {20, 30}, "19,9,22,32 65"},
      {3, {10, 20}, {10, 20}, "9,19,12,22 5"},
      {1, {-50, 20}, {150, 20}, "0,20,100,21 100"},
      {2, {20, -500}, {20, 500}, "19,0,21,100 200"},
      {1, {-2000000000, 50}, {2000000000, 50}, "0,50,100,51 100"},
      {1, {-1000000, -1000000}, {1000000, 1000000}, "0,0,100,100 100"},
  };
  for (const auto& line : cases) {
    wipe();
    draw(line.width, {line.from, line.to});
    EXPECT_EQ(drawn(), line.covered) << "width " << line.width << " from " << line.from.x << ","
                                     << line.from.y << " to " << line.to.x << "," << line.to.y;
  }
}

TEST_F(GdiLines, FrameOfTheTwoPixelPenOvershootsAtItsFirstCorner) {
  draw(2, {{19, 15}, {60, 15}, {60, 45}, {20, 45}, {20, 14}});
  for (int y = 0; y < kSize; ++y)
    for (int x = 0; x < kSize; ++x) {
      const bool column = (x == 19 || x == 20 || x == 59 || x == 60) && y >= 14 && y <= 45;
      const bool row = (y == 14 || y == 15 || y == 44 || y == 45) && x >= 19 && x <= 60;
      const bool corner = (x == 18 && (y == 14 || y == 15)) || (y == 13 && (x == 19 || x == 20));
      EXPECT_EQ(surface->at(x, y) != kWhite, column || row || corner) << x << "," << y;
    }
}

TEST_F(GdiLines, RowFrame) {
  draw(2, {{1, 12}, {98, 12}, {98, 38}, {2, 38}, {2, 11}});
  for (int y = 0; y < kSize; ++y)
    for (int x = 0; x < kSize; ++x) {
      const bool row = (y == 11 || y == 12) && x <= 98;
      const bool bottom = (y == 37 || y == 38) && x >= 1 && x <= 98;
      const bool column = (x == 1 || x == 2 || x == 97 || x == 98) && y >= 11 && y <= 38;
      const bool overshoot = y == 10 && (x == 1 || x == 2);
      EXPECT_EQ(surface->at(x, y) != kWhite, row || bottom || column || overshoot) << x << "," << y;
    }
}

TEST_F(GdiLines, ObliqueWidePenIsAsWideAsItSays) {
  draw(10, {{20, 20}, {80, 80}});
  for (int at = 25; at < 75; ++at) {
    int across = 0;
    for (int x = 0; x < kSize; ++x) across += surface->at(x, at) != kWhite;
    EXPECT_NEAR(across, 14, 1) << "row " << at;  // 10 * sqrt(2)
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
  EXPECT_EQ(before.x, 30);
  EXPECT_EQ(before.y, 40);
  EXPECT_EQ(drawn(), "nothing");
}

TEST_F(GdiLines, DashesLeaveGapsAndFillThemWhenOpaque) {
  HPEN pen = CreatePen(PS_DOT, 1, RGB(255, 0, 0));
  HGDIOBJ before = SelectObject(dc, pen);
  SetBkMode(dc, TRANSPARENT);
  MoveToEx(dc, 0, 10, nullptr);
  LineTo(dc, 12, 10);
  EXPECT_EQ(drawn(), "0,10,9,11 6");
  SetBkMode(dc, OPAQUE);
  SetBkColor(dc, RGB(0, 0, 255));
  MoveToEx(dc, 0, 10, nullptr);
  LineTo(dc, 12, 10);
  EXPECT_EQ(drawn(), "0,10,12,11 12");
  SelectObject(dc, before);
  DeleteObject(pen);
}

TEST_F(GdiLines, ComplexClipAndOriginHold) {
  Region clip(RECT{0, 0, 40, 100});
  clip.unite(RECT{60, 0, 100, 100});
  HDC shifted = gdi.open_dc(surface, {10, 10}, clip);
  for (const int width : {1, 2}) {
    wipe();
    HPEN pen = CreatePen(PS_SOLID, width, 0);
    HGDIOBJ before = SelectObject(shifted, pen);
    MoveToEx(shifted, 0, 20, nullptr);
    LineTo(shifted, 80, 20);
    SelectObject(shifted, before);
    DeleteObject(pen);
    EXPECT_EQ(surface->at(10, 30), 0u);
    EXPECT_EQ(surface->at(39, 30), 0u);
    EXPECT_EQ(surface->at(40, 30), kWhite);
    EXPECT_EQ(surface->at(59, 30), kWhite);
    EXPECT_EQ(surface->at(60, 30), 0u);
    const Region marks = surface->take_marks();
    EXPECT_TRUE(marks.covers({10, 30, 40, 31}));
    EXPECT_FALSE(marks.intersects({40, 0, 60, 100}));
  }
  gdi.close_dc(shifted);
}

}  // namespace
}  // namespace corvane::system
