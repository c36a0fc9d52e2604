#include <tuple>

#include "corvane/platform/system/gdi/gdiplus.h"
#include "tests/platform/gdi/gdi_fixture.h"

namespace corvane::system {
namespace {

class GdiFills : public GdiTest {
 protected:
  HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
  ~GdiFills() override { DeleteObject(brush); }
};

TEST_F(GdiFills, RectanglesIncludeLeftTopAndExcludeRightBottom) {
  SetBkColor(dc, RGB(9, 9, 9));
  SelectObject(dc, brush);
  expect_drawn(
      "tests/platform/gdi/rectangles.txt",
      {{"FillRect", [&](const RECT& rect) { FillRect(dc, &rect, brush); }},
       {"FrameRect", [&](const RECT& rect) { FrameRect(dc, &rect, brush); }},
       {"Rectangle",
        [&](const RECT& rect) { Rectangle(dc, rect.left, rect.top, rect.right, rect.bottom); }},
       {"ExtTextOut",
        [&](const RECT& rect) { ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr); }}});
}

TEST_F(GdiFills, SolidDrawingWritesAZeroAlphaByte) {
  surface->fill(surface->rect(), 0xFF112233);
  const RECT rect{0, 0, 10, 10};
  FillRect(dc, &rect, brush);
  SetPixel(dc, 20, 20, RGB(4, 5, 6));
  expect_dots({{5, 5, 0x00010203}, {20, 20, 0x00040506}});
  EXPECT_EQ(GetPixel(dc, 20, 20), static_cast<COLORREF>(RGB(4, 5, 6)));
  EXPECT_EQ(GetPixel(dc, -1, 0), CLR_INVALID);
  EXPECT_EQ(SetPixel(dc, 0, 100, 0), CLR_INVALID);
}

TEST_F(GdiFills, RectangleDrawsOutlineWithThePenAndInsideWithTheBrush) {
  const Selected pen(dc, CreatePen(PS_SOLID, 1, RGB(7, 0, 0)));
  SelectObject(dc, brush);
  Rectangle(dc, 10, 10, 20, 20);
  EXPECT_EQ(count([](int, int, Pixel color) { return color == 0x070000; }), 36);
  EXPECT_EQ(count([](int, int, Pixel color) { return color == 0x010203; }), 64);
  const std::pair<int, const char*> cases[] = {{NULL_PEN, "10,10,19,19 81"},
                                               {NULL_BRUSH, "10,10,20,20 36"}};
  for (const auto& [without, covered] : cases) {
    wipe();
    const HGDIOBJ with = SelectObject(dc, GetStockObject(without));
    Rectangle(dc, 10, 10, 20, 20);
    EXPECT_EQ(drawn(), covered);
    SelectObject(dc, with);
  }
}

TEST_F(GdiFills, ClipRegionLimitsAndMarksExactly) {
  EXPECT_EQ(IntersectClipRect(dc, 10, 10, 50, 50), SIMPLEREGION);
  EXPECT_EQ(ExcludeClipRect(dc, 20, 20, 30, 30), COMPLEXREGION);
  const RECT all{0, 0, 100, 100};
  FillRect(dc, &all, brush);
  EXPECT_EQ(drawn(), "10,10,50,50 1500");
  const Region marks = surface->take_marks();
  EXPECT_FALSE(marks.intersects({20, 20, 30, 30}));
  EXPECT_EQ(marks.bounds().left, 10);
  RECT box{};
  SetViewportOrgEx(dc, 10, 10, nullptr);
  EXPECT_EQ(GetClipBox(dc, &box), COMPLEXREGION);
  EXPECT_THAT(box, test::is_rect(0, 0, 40, 40));
  const RECT hole{11, 11, 19, 19}, edge{19, 11, 21, 19};
  EXPECT_FALSE(RectVisible(dc, &hole));
  EXPECT_TRUE(RectVisible(dc, &edge));
  EXPECT_EQ(IntersectClipRect(dc, 60, 60, 70, 70), NULLREGION);
}

TEST_F(GdiFills, ContextDrawsOnlyInsideWhatItWasOpenedFor) {
  HDC part = open(surface, {30, 30}, Region(RECT{30, 30, 40, 40}));
  const RECT all{-50, -50, 100, 100};
  FillRect(part, &all, brush);
  EXPECT_EQ(drawn(), "30,30,40,40 100");
}

TEST_F(GdiFills, ClassBackgroundBrushes) {
  const Region area(RECT{0, 0, 5, 5});
  const auto index_brush = reinterpret_cast<HBRUSH>(static_cast<std::uintptr_t>(COLOR_BTNFACE + 1));
  EXPECT_TRUE(gdi.fill(*surface, area, index_brush));
  EXPECT_EQ(surface->at(0, 0), pixel_of(GetSysColor(COLOR_BTNFACE)));
  EXPECT_EQ(surface->take_marks().bounds().right, 5);
  EXPECT_TRUE(gdi.fill(*surface, area, brush));
  EXPECT_EQ(surface->at(4, 4), 0x010203u);
  EXPECT_FALSE(gdi.fill(*surface, area, nullptr));
  EXPECT_FALSE(gdi.fill(*surface, area, static_cast<HBRUSH>(GetStockObject(NULL_BRUSH))));
  EXPECT_FALSE(gdi.fill(*surface, area, reinterpret_cast<HBRUSH>(0x1234567)));
}

TEST_F(GdiFills, SystemColors) {
  for (const auto& row : test::golden_rows("tests/platform/gdi/system_colors.txt")) {
    const auto parts = test::numbers_of(row.at(1));
    EXPECT_EQ(GetSysColor(std::stoi(row.at(0))), RGB(parts.at(0), parts.at(1), parts.at(2)))
        << row.at(2);
  }
  for (const int none : {-1, 31}) EXPECT_EQ(GetSysColor(none), 0u);
}

TEST_F(GdiFills, GdiPlusRectangles) {
  using namespace Gdiplus;
  Graphics graphics(dc);
  const SolidBrush red(Color(255, 0, 0));
  const Pen pen(Color(255, 0, 0));
  EXPECT_EQ(graphics.FillRectangle(&red, 10, 10, 20, 15), Ok);
  EXPECT_EQ(drawn(), "10,10,30,25 300");
  EXPECT_EQ(surface->at(10, 10), 0xFFFF0000u);
  wipe();
  graphics.FillRectangle(&red, 10, 10, 0, 15);
  graphics.FillRectangle(&red, 10, 10, -5, 15);
  EXPECT_EQ(drawn(), "nothing");
  EXPECT_EQ(graphics.DrawRectangle(&pen, 10, 10, 20, 15), Ok);
  EXPECT_EQ(drawn(), "10,10,31,26 70");
  wipe();
  graphics.DrawLine(&pen, 10, 20, 30, 20);
  EXPECT_EQ(drawn(), "10,20,31,21 21");
  EXPECT_EQ(graphics.FillRectangle(nullptr, 0, 0, 5, 5), InvalidParameter);
}

TEST_F(GdiFills, GdiPlusBlendsBySourceOver) {
  using namespace Gdiplus;
  Graphics graphics(dc);
  const std::tuple<Pixel, BYTE, Pixel> cases[] = {
      {kWhite, 128, 0x80FF7F7F}, {0, 128, 0x80800000}, {0x123456, 0, 0x123456}};
  for (const auto& [before, alpha, after] : cases) {
    surface->fill(surface->rect(), before);
    const SolidBrush red(Color(alpha, 255, 0, 0));
    graphics.FillRectangle(&red, 0, 0, 10, 10);
    expect_dots({{5, 5, after}});
  }
}

TEST_F(GdiFills, GdiPlusTransformsArePrependedAndTurnClockwise) {
  using namespace Gdiplus;
  const SolidBrush red(Color(255, 0, 0));
  Graphics graphics(dc);
  graphics.TranslateTransform(10, 20);
  graphics.RotateTransform(90);
  graphics.FillRectangle(&red, 5, 0, 1, 1);
  EXPECT_EQ(drawn(), "9,25,10,26 1");  // the pixel right of and below (10, 25) turned with it
}

}  // namespace
}  // namespace corvane::system
