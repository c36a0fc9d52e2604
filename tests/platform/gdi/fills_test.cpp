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
  const HGDIOBJ before = SelectObject(dc, brush);
  expect_drawn(
      "tests/platform/gdi/rectangles.txt",
      {{"FillRect", [&](const RECT& rect) { FillRect(dc, &rect, brush); }},
       {"FrameRect", [&](const RECT& rect) { FrameRect(dc, &rect, brush); }},
       {"Rectangle",
        [&](const RECT& rect) { Rectangle(dc, rect.left, rect.top, rect.right, rect.bottom); }},
       {"ExtTextOut",
        [&](const RECT& rect) { ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr); }}});
  SelectObject(dc, before);
}

TEST_F(GdiFills, SolidDrawingWritesAZeroAlphaByte) {
  surface->fill(surface->rect(), 0xFF112233);
  const RECT rect{0, 0, 10, 10};
  FillRect(dc, &rect, brush);
  EXPECT_EQ(surface->at(5, 5), 0x00010203u);
  SetPixel(dc, 20, 20, RGB(4, 5, 6));
  EXPECT_EQ(surface->at(20, 20), 0x00040506u);
  EXPECT_EQ(GetPixel(dc, 20, 20), static_cast<COLORREF>(RGB(4, 5, 6)));
  EXPECT_EQ(GetPixel(dc, -1, 0), CLR_INVALID);
  EXPECT_EQ(SetPixel(dc, 0, 100, 0), CLR_INVALID);
}

TEST_F(GdiFills, RectangleDrawsOutlineWithThePenAndInsideWithTheBrush) {
  const Selected pen(dc, CreatePen(PS_SOLID, 1, RGB(7, 0, 0)));
  const HGDIOBJ before = SelectObject(dc, brush);
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
  SelectObject(dc, before);
}

TEST_F(GdiFills, ClipRegionLimitsAndMarksExactly) {
  EXPECT_EQ(IntersectClipRect(dc, 10, 10, 50, 50), SIMPLEREGION);
  EXPECT_EQ(ExcludeClipRect(dc, 20, 20, 30, 30), COMPLEXREGION);
  const RECT all{0, 0, 100, 100};
  FillRect(dc, &all, brush);
  EXPECT_EQ(drawn(), "10,10,50,50 1500");
  EXPECT_EQ(surface->at(25, 25), kWhite);
  const Region marks = surface->take_marks();
  EXPECT_FALSE(marks.intersects({20, 20, 30, 30}));
  EXPECT_EQ(marks.bounds().left, 10);
  RECT box{};
  SetViewportOrgEx(dc, 10, 10, nullptr);
  EXPECT_EQ(GetClipBox(dc, &box), COMPLEXREGION);
  EXPECT_EQ(box.left, 0);
  EXPECT_EQ(box.right, 40);
  const RECT hole{11, 11, 19, 19};
  EXPECT_FALSE(RectVisible(dc, &hole));
  EXPECT_EQ(IntersectClipRect(dc, 60, 60, 70, 70), NULLREGION);
}

TEST_F(GdiFills, ContextDrawsOnlyInsideWhatItWasOpenedFor) {
  HDC part = gdi.open_dc(surface, {30, 30}, Region(RECT{30, 30, 40, 40}));
  const RECT all{-50, -50, 100, 100};
  FillRect(part, &all, brush);
  EXPECT_EQ(drawn(), "30,30,40,40 100");
  gdi.close_dc(part);
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
  const SolidBrush half(Color(128, 255, 0, 0));
  const SolidBrush none(Color(0, 255, 0, 0));
  graphics.FillRectangle(&half, 0, 0, 10, 10);
  EXPECT_EQ(surface->at(5, 5) & 0xFFFFFF, 0xFF7F7Fu);
  surface->fill(surface->rect(), 0);
  graphics.FillRectangle(&half, 0, 0, 10, 10);
  EXPECT_EQ(surface->at(5, 5), 0x80800000u);
  surface->fill(surface->rect(), 0x123456);
  graphics.FillRectangle(&none, 0, 0, 10, 10);
  EXPECT_EQ(surface->at(5, 5), 0x123456u);
}

TEST_F(GdiFills, GdiPlusTransformsArePrependedAndTurnClockwise) {
  using namespace Gdiplus;
  const SolidBrush red(Color(255, 0, 0));
  Graphics turned(dc);
  turned.TranslateTransform(50, 50);
  turned.RotateTransform(90);
  turned.TranslateTransform(-50, -50);
  turned.FillRectangle(&red, 60, 50, 1, 1);
  EXPECT_EQ(drawn(), "49,60,50,61 1");  // the pixel right of and below (50, 60) turned with it
  wipe();
  Graphics moved(dc);
  moved.TranslateTransform(10, 20);
  moved.RotateTransform(90);
  moved.FillRectangle(&red, 5, 0, 1, 1);
  EXPECT_EQ(drawn(), "9,25,10,26 1");
}

}  // namespace
}  // namespace corvane::system
