// Pictures and texts drawn into buffers and put on layered windows.
#include "corvane/platform/base_services/set_font.h"
#include "tests/platform/drawing/drawing_support.h"
#include "tests/support/rects.h"

namespace corvane {
namespace {

using namespace test;

using GdiDC = DrawingTest;

TEST_F(GdiDC, DrawsAnImageInItsOwnSizePixelForPixel) {
  const CBufferDC target = buffer(40, 40, kWhite);
  auto image = quarters(20);
  ASSERT_TRUE(drawing_.DrawImage(target, &image, CRect(10, 10, 30, 30)));
  const struct {
    int x, y;
    COLORREF color;
  } points[] = {{10, 10, kRed},   {19, 19, kRed},  {20, 10, kGreen}, {29, 19, kGreen},
                {10, 20, kBlue},  {19, 29, kBlue}, {20, 20, kWhite}, {9, 10, kWhite},
                {30, 10, kWhite}, {10, 9, kWhite}, {10, 30, kWhite}};
  for (const auto& point : points) {
    EXPECT_EQ(::GetPixel(target, point.x, point.y), point.color) << point.x << ", " << point.y;
  }
}

TEST_F(GdiDC, ScalesAnImageIntoTheRectangle) {
  const CBufferDC target = buffer(100, 50, kWhite);
  auto image = quarters(20);
  ASSERT_TRUE(drawing_.DrawImage(target, &image, CRect(10, 5, 90, 45)));
  EXPECT_EQ(::GetPixel(target, 30, 15), kRed);
  EXPECT_EQ(::GetPixel(target, 70, 15), kGreen);
  EXPECT_EQ(::GetPixel(target, 30, 35), kBlue);
  EXPECT_EQ(::GetPixel(target, 70, 35), kWhite);
}

TEST_F(GdiDC, TurnsAnImageClockwiseAboutTheCentre) {
  auto image = quarters(20);
  const struct {
    int angle;
    COLORREF top_left, top_right, bottom_left, bottom_right;
  } cases[] = {{0, kRed, kGreen, kBlue, kWhite},   {90, kBlue, kRed, kWhite, kGreen},
               {180, kWhite, kBlue, kGreen, kRed}, {270, kGreen, kWhite, kRed, kBlue},
               {-90, kGreen, kWhite, kRed, kBlue}, {450, kBlue, kRed, kWhite, kGreen}};
  for (const auto& each : cases) {
    const CBufferDC target = buffer(40, 40, kWhite);
    ASSERT_TRUE(drawing_.DrawImage(target, &image, CRect(10, 10, 30, 30), each.angle));
    EXPECT_EQ(::GetPixel(target, 13, 13), each.top_left) << each.angle;
    EXPECT_EQ(::GetPixel(target, 26, 13), each.top_right) << each.angle;
    EXPECT_EQ(::GetPixel(target, 13, 26), each.bottom_left) << each.angle;
    EXPECT_EQ(::GetPixel(target, 26, 26), each.bottom_right) << each.angle;
  }
}

TEST_F(GdiDC, RefusesWhatCannotBeDrawn) {
  const CBufferDC target = buffer(10, 10, kWhite);
  auto image = quarters(4);
  const LOGFONTW font{-10, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, L"sans"};
  const CRect rect(0, 0, 10, 10);
  EXPECT_FALSE(drawing_.DrawImage(target, nullptr, rect));
  EXPECT_FALSE(drawing_.DrawImage(nullptr, &image, rect));
  EXPECT_FALSE(drawing_.DrawImage(target, &image, CRect(5, 5, 5, 10)));
  EXPECT_FALSE(drawing_.DrawTextW(target, nullptr, &font, rect, 0xFF000000, DT_LEFT));
  EXPECT_FALSE(drawing_.DrawTextW(target, L"x", nullptr, rect, 0xFF000000, DT_LEFT));
  EXPECT_FALSE(drawing_.DrawTextW(nullptr, L"x", &font, rect, 0xFF000000, DT_LEFT));
  EXPECT_FALSE(drawing_.Paste(nullptr, target, 255));
  EXPECT_FALSE(drawing_.Paste(::GetDesktopWindow(), nullptr, 255));
  EXPECT_EQ(::GetPixel(target, 5, 5), kWhite);
}

CRect ink_of(HDC dc, const CRect& within, COLORREF background) {
  CRect ink;
  for (int y = within.top; y < within.bottom; ++y) {
    for (int x = within.left; x < within.right; ++x) {
      if (::GetPixel(dc, x, y) != background) ink |= CRect(x, y, x + 1, y + 1);
    }
  }
  return ink;
}

TEST_F(GdiDC, PlacesTextByItsFormat) {
  const LOGFONTW font{-16, 0, 0, 0, 400, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"宋体"};
  const CRect box(20, 20, 180, 80);
  const struct {
    UINT format;
    int x, y;  // -1: at the start, 0: in the middle, 1: at the end
  } cases[] = {{DT_LEFT | DT_TOP, -1, -1},
               {DT_CENTER | DT_VCENTER, 0, 0},
               {DT_RIGHT | DT_BOTTOM, 1, 1},
               {DT_CENTER | DT_BOTTOM, 0, 1},
               {DT_RIGHT | DT_VCENTER, 1, 0}};
  for (const auto& each : cases) {
    const CBufferDC target = buffer(200, 100, kWhite);
    ASSERT_TRUE(
        drawing_.DrawTextW(target, L"国国", &font, box, 0xFF000000, each.format | DT_SINGLELINE));
    const CRect ink = ink_of(target, CRect(0, 0, 200, 100), kWhite);
    ASSERT_FALSE(ink.IsRectEmpty()) << each.format;
    const int left = ink.left - box.left, right = box.right - ink.right;
    const int above = ink.top - box.top, below = box.bottom - ink.bottom;
    EXPECT_NEAR(each.x < 0 ? left : each.x > 0 ? right : left - right, 0, 8) << each.format;
    EXPECT_NEAR(each.y < 0 ? above : each.y > 0 ? below : above - below, 0, 8) << each.format;
  }
}

TEST_F(GdiDC, ASingleLineHasNoBreaks) {
  const LOGFONTW font{-16, 0, 0, 0, 400, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"宋体"};
  const CRect box(0, 0, 200, 100);
  for (const wchar_t* text : {L"国\n国", L"国\r\n国", L"国\u2028国", L"国\v国"}) {
    const CBufferDC target = buffer(200, 100, kWhite);
    drawing_.DrawTextW(target, text, &font, box, 0xFF000000, DT_SINGLELINE | DT_VCENTER);
    const CRect ink = ink_of(target, box, kWhite);
    EXPECT_LE(ink.Height(), 16);
    EXPECT_GT(ink.Width(), 30);
  }
}

TEST_F(GdiDC, PutsABufferOnALayeredWindow) {
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = ::DefWindowProcW;
  window_class.lpszClassName = L"layer";
  window_class.hbrBackground = static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
  ::RegisterClassW(&window_class);
  const auto create = [](DWORD ex_style) {
    return ::CreateWindowExW(ex_style, L"layer", L"", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100,
                             nullptr, nullptr, nullptr, nullptr);
  };
  const HWND below = create(0);
  ::UpdateWindow(below);
  const HWND above = create(WS_EX_LAYERED);
  CBufferDC picture = buffer(60, 40, kBlack);
  auto image = quarters(20);
  drawing_.DrawImage(picture, &image, CRect(0, 0, 20, 20));
  EXPECT_FALSE(drawing_.Paste(below, picture, 255));
  ASSERT_TRUE(drawing_.Paste(above, picture, 255));
  EXPECT_EQ(desktop_.pixel(5, 5), kRed);
  EXPECT_EQ(desktop_.pixel(15, 15), kWhite) << "clear in the image";
  EXPECT_EQ(desktop_.pixel(40, 30), kWhite) << "the black of the buffer is clear";
  EXPECT_THAT(window_rect(above), is_rect(0, 0, 60, 40));
  ASSERT_TRUE(drawing_.Paste(above, picture, 128));
  EXPECT_NEAR(GetGValue(desktop_.pixel(5, 5)), 127, 2);
  EXPECT_EQ(GetRValue(desktop_.pixel(5, 5)), 255);
}

TEST(SetFont, IsSelectedForAsLongAsItLives) {
  const Desktop desktop({20, 20});
  const HDC dc = ::CreateCompatibleDC(nullptr);
  const HGDIOBJ before = ::GetCurrentObject(dc, OBJ_FONT);
  const int objects = desktop.living_drawing_objects();
  {
    const CSetFont font(dc, 32, 0, FW_BOLD, L"宋体");
    LOGFONTW description{};
    ::GetObjectW(::GetCurrentObject(dc, OBJ_FONT), sizeof(description), &description);
    EXPECT_EQ(description.lfHeight, 32);
    EXPECT_EQ(description.lfWeight, FW_BOLD);
    EXPECT_STREQ(description.lfFaceName, L"宋体");
  }
  EXPECT_EQ(::GetCurrentObject(dc, OBJ_FONT), before);
  EXPECT_EQ(desktop.living_drawing_objects(), objects);
  ::DeleteDC(dc);
  const CSetFont on_nothing(nullptr, 32, 0, FW_BOLD, nullptr);
}

}  // namespace
}  // namespace corvane
