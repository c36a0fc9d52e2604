#include "tests/platform/gdi/gdi_fixture.h"

namespace corvane::system {
namespace {

class GdiBlits : public GdiTest {
 protected:
  // A context whose pixel at (x, y) is 0xAA00yyxx.
  HDC numbered(const std::shared_ptr<Surface>& on) {
    for (int y = 0; y < on->height(); ++y)
      for (int x = 0; x < on->width(); ++x) on->row(y)[x] = number(x, y);
    return open(on);
  }
  HDC numbered(int width, int height) { return numbered(std::make_shared<Surface>(width, height)); }
  static Pixel number(int x, int y) {
    return 0xAA000000u | static_cast<Pixel>(y << 8) | static_cast<Pixel>(x);
  }
};

TEST_F(GdiBlits, CopiesAllBitsAndClipsToBothSurfaces) {
  HDC from = numbered(20, 20);
  EXPECT_TRUE(BitBlt(dc, 90, 90, 20, 20, from, 0, 0, SRCCOPY));
  EXPECT_EQ(drawn(), "90,90,100,100 100");
  EXPECT_EQ(surface->at(91, 92), number(1, 2));
  wipe();
  EXPECT_TRUE(BitBlt(dc, 10, 10, 30, 30, from, -5, 15, SRCCOPY));
  EXPECT_EQ(drawn(), "15,10,35,15 100");
  EXPECT_EQ(surface->at(15, 10), number(0, 15));
  EXPECT_EQ(surface->take_marks().bounds().left, 15);
  wipe();
  EXPECT_TRUE(BitBlt(dc, 2147483647, -2147483647, 2147483647, 2147483647, from, 0, 0, SRCCOPY));
  EXPECT_EQ(drawn(), "nothing");
}

TEST_F(GdiBlits, OverlappingCopiesReadBeforeTheyWrite) {
  for (const POINT shift : {POINT{3, 2}, POINT{-3, 2}, POINT{3, -2}, POINT{-3, -2}, POINT{1, 0}})
    for (const bool complex : {false, true}) {
      auto own = std::make_shared<Surface>(40, 40);
      HDC both = numbered(own);
      if (complex) ExcludeClipRect(both, 18, 18, 20, 20);
      BitBlt(both, 10 + shift.x, 10 + shift.y, 20, 20, both, 10, 10, SRCCOPY);
      Region copied(RECT{10 + shift.x, 10 + shift.y, 30 + shift.x, 30 + shift.y});
      if (complex) copied.subtract(RECT{18, 18, 20, 20});
      for (int at = 0; at < 40 * 40; ++at) {
        const int x = at % 40, y = at / 40;
        const bool moved = copied.contains({x, y});
        ASSERT_EQ(own->at(x, y), moved ? number(x - shift.x, y - shift.y) : number(x, y))
            << x << "," << y << " shift " << shift.x << "," << shift.y;
      }
    }
}

TEST_F(GdiBlits, StretchingDoublesHalvesAndMirrors) {
  HDC from = numbered(4, 2);
  SetStretchBltMode(dc, COLORONCOLOR);
  StretchBlt(dc, 10, 10, 8, 4, from, 0, 0, 4, 2, SRCCOPY);
  for (int y = 0; y < 4; ++y)
    for (int x = 0; x < 8; ++x) EXPECT_EQ(surface->at(10 + x, 10 + y), number(x / 2, y / 2));
  EXPECT_EQ(drawn(), "10,10,18,14 32");
  StretchBlt(dc, 30, 10, 2, 1, from, 0, 0, 4, 2, SRCCOPY);
  expect_dots({{30, 10, number(1, 1)}, {31, 10, number(3, 1)}});  // the second of each pair
  StretchBlt(dc, 53, 50, -4, 2, from, 0, 0, 4, 2, SRCCOPY);
  for (int x = 0; x < 4; ++x) EXPECT_EQ(surface->at(50 + x, 50), number(3 - x, 0));
  StretchBlt(dc, 60, 61, 4, -2, from, 0, 0, 4, 2, SRCCOPY);
  StretchBlt(dc, 70, 70, 4, 2, from, 3, 0, -4, 2, SRCCOPY);
  expect_dots({{60, 60, number(0, 1)}, {60, 61, number(0, 0)}, {70, 70, number(3, 0)}});
  EXPECT_TRUE(StretchBlt(dc, 0, 0, 0, 4, from, 0, 0, 4, 2, SRCCOPY));
}

TEST_F(GdiBlits, SourcePixelsOutsideAreNotWritten) {
  HDC from = numbered(4, 4);
  SetStretchBltMode(dc, COLORONCOLOR);
  StretchBlt(dc, 10, 10, 16, 16, from, -2, 0, 8, 8, SRCCOPY);
  EXPECT_EQ(drawn(), "14,10,22,18 64");
  EXPECT_EQ(surface->at(21, 17), number(3, 3));
}

TEST_F(GdiBlits, CombiningModesUseAllPixelsWhenShrinking) {
  auto source = std::make_shared<Surface>(2, 1);
  source->row(0)[0] = 0xFF0F0000;
  source->row(0)[1] = 0xFFFF0002;
  HDC from = open(source);
  const std::pair<int, Pixel> cases[] = {
      {BLACKONWHITE, 0xFF0F0000}, {WHITEONBLACK, 0xFFFF0002}, {HALFTONE, 0xFF870001}};
  for (const auto& [mode, result] : cases) {
    SetStretchBltMode(dc, mode);
    StretchBlt(dc, 0, 0, 1, 1, from, 0, 0, 2, 1, SRCCOPY);
    StretchBlt(dc, 1, 0, 1, 1, from, 1, 0, -2, 1, SRCCOPY);
    expect_dots({{0, 0, result}, {1, 0, result}});
  }
}

TEST_F(GdiBlits, SmallSourceOfOneColourBecomesAFill) {
  HDC memory = open_memory(dc);
  const Selected bitmap(memory, CreateCompatibleBitmap(dc, 10, 10));
  const Selected brush(memory, CreateSolidBrush(RGB(10, 20, 30)));
  PatBlt(memory, 2, 2, 6, 6, PATCOPY);
  StretchBlt(dc, 0, 0, kSize, kSize, memory, 2, 2, 6, 6, SRCCOPY);
  EXPECT_EQ(surface->uniform(), 0x0A141Eu);
}

TEST_F(GdiBlits, PatternOperations) {
  const Selected brush(dc, CreateSolidBrush(RGB(1, 2, 3)));
  EXPECT_TRUE(PatBlt(dc, 10, 10, 5, 5, PATCOPY));
  EXPECT_EQ(surface->at(14, 14), 0x010203u);
  EXPECT_TRUE(BitBlt(dc, 10, 10, 5, 5, nullptr, 0, 0, BLACKNESS));
  EXPECT_EQ(surface->at(14, 14), 0u);
  EXPECT_TRUE(PatBlt(dc, 10, 10, 5, 5, WHITENESS));
  EXPECT_EQ(drawn(), "nothing");
  EXPECT_FALSE(PatBlt(dc, 10, 10, 5, 5, 0x12345678));
  EXPECT_FALSE(BitBlt(dc, 10, 10, 5, 5, dc, 0, 0, 0x12345678));
  EXPECT_FALSE(BitBlt(dc, 10, 10, 5, 5, nullptr, 0, 0, SRCCOPY));
}

TEST_F(GdiBlits, FreshMemoryContextIsMonochrome) {
  HDC memory = open_memory(nullptr);
  BITMAP bitmap{};
  EXPECT_EQ(GetObjectW(GetCurrentObject(memory, OBJ_BITMAP), sizeof bitmap, &bitmap),
            static_cast<int>(sizeof bitmap));
  EXPECT_EQ(std::pair(bitmap.bmWidth, bitmap.bmBitsPixel), (std::pair<LONG, WORD>(1, 1)));
  const struct {
    HDC like;
    int width, height, got_width, bits;
  } cases[] = {{memory, 8, 8, 8, 1}, {dc, 8, 6, 8, 32}, {dc, 0, 0, 1, 1}, {dc, 0, 5, 1, 1}};
  for (const auto& item : cases) {
    HBITMAP made = CreateCompatibleBitmap(item.like, item.width, item.height);
    EXPECT_NE(GetObjectW(made, sizeof bitmap, &bitmap), 0);
    EXPECT_EQ(bitmap.bmWidth, item.got_width);
    EXPECT_EQ(bitmap.bmBitsPixel, item.bits);
    const Selected bitmap_of(memory, made);
    EXPECT_EQ(GetPixel(memory, 0, 0), 0u);  // new bitmaps are black
  }
}

TEST_F(GdiBlits, MonochromeKeepsTwoColours) {
  HDC memory = open_memory(nullptr);
  const Selected mono(memory, CreateCompatibleBitmap(memory, 4, 1));
  SetPixel(memory, 0, 0, RGB(200, 200, 200));
  EXPECT_EQ(GetPixel(memory, 0, 0), static_cast<COLORREF>(RGB(255, 255, 255)));
  SetTextColor(dc, RGB(255, 0, 0));
  SetBkColor(dc, RGB(0, 255, 0));
  BitBlt(dc, 10, 10, 4, 1, memory, 0, 0, SRCCOPY);
  expect_dots({{10, 10, 0x00FF00}, {11, 10, 0xFF0000}});
  BitBlt(memory, 0, 0, 4, 1, dc, 10, 10, SRCCOPY);  // the background colour becomes white
  EXPECT_EQ(GetPixel(memory, 0, 0), static_cast<COLORREF>(RGB(255, 255, 255)));
  EXPECT_EQ(GetPixel(memory, 1, 0), 0u);
}

TEST_F(GdiBlits, DibSectionSharesItsBits) {
  for (const LONG height : {-3, 3}) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), 4, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    ASSERT_NE(bits, nullptr);
    HDC memory = open_memory(dc);
    const Selected section(memory, bitmap);
    static_cast<Pixel*>(bits)[0] = 0x80402010;
    EXPECT_EQ(GetPixel(memory, 0, height < 0 ? 0 : 2), static_cast<COLORREF>(RGB(64, 32, 16)));
    BitBlt(dc, 0, 0, 4, 3, memory, 0, 0, SRCCOPY);
    EXPECT_EQ(surface->at(0, height < 0 ? 0 : 2), 0x80402010u);
    const RECT all{0, 0, 4, 3};
    FillRect(memory, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    EXPECT_EQ(static_cast<Pixel*>(bits)[11], 0xFFFFFFu);
    TextOutW(memory, 0, 0, L"x", 1);  // the text library's rows run as the bitmap's
  }
}

}  // namespace
}  // namespace corvane::system
