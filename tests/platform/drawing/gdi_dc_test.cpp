// Pictures and texts drawn into buffers and put on layered windows.
#include <array>
#include <tuple>

#include "corvane/platform/base_services/set_font.h"
#include "corvane/platform/framework/framework.h"
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
  CBufferDC expected = buffer(40, 40, kWhite);
  expected.SetBackColor(CRect(10, 10, 20, 20), kRed);
  expected.SetBackColor(CRect(20, 10, 30, 20), kGreen);
  expected.SetBackColor(CRect(10, 20, 20, 30), kBlue);
  expect_same(target, expected);
}

TEST_F(GdiDC, ScalesAnImageIntoTheRectangleAndTurnsItClockwiseAboutTheCentre) {
  auto image = quarters(20);
  const CRect square(10, 10, 30, 30), wide(10, 5, 90, 45);
  const struct {
    const CRect& rect;
    int angle;
    std::array<COLORREF, 4> corners;  // from the left upper one in reading order
  } cases[] = {
      {square, 0, {kRed, kGreen, kBlue, kWhite}},   {wide, 0, {kRed, kGreen, kBlue, kWhite}},
      {square, 90, {kBlue, kRed, kWhite, kGreen}},  {square, 180, {kWhite, kBlue, kGreen, kRed}},
      {square, 270, {kGreen, kWhite, kRed, kBlue}}, {square, -90, {kGreen, kWhite, kRed, kBlue}},
      {square, 450, {kBlue, kRed, kWhite, kGreen}}, {wide, 180, {kWhite, kBlue, kGreen, kRed}}};
  for (const auto& each : cases) {
    const CBufferDC target = buffer(100, 50, kWhite);
    ASSERT_TRUE(drawing_.DrawImage(target, &image, each.rect, each.angle));
    CRect inner(each.rect);
    inner.DeflateRect(3, 3, 4, 4);
    const auto at = [&target](int x, int y) { return ::GetPixel(target, x, y); };
    EXPECT_EQ((std::array{at(inner.left, inner.top), at(inner.right, inner.top),
                          at(inner.left, inner.bottom), at(inner.right, inner.bottom)}),
              each.corners)
        << each.angle;
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

constexpr LOGFONTW kFont{-16, 0, 0, 0, 400, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"宋体"};

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
  const CRect box(20, 20, 180, 80);
  // How far right and down: -1 at the start, 0 in the middle, 1 at the end.
  const std::tuple<UINT, int, int> cases[] = {{DT_LEFT | DT_TOP, -1, -1},
                                              {DT_CENTER | DT_VCENTER, 0, 0},
                                              {DT_RIGHT | DT_BOTTOM, 1, 1},
                                              {DT_CENTER | DT_BOTTOM, 0, 1},
                                              {DT_RIGHT | DT_VCENTER, 1, 0}};
  for (const auto& [format, x, y] : cases) {
    const CBufferDC target = buffer(200, 100, kWhite);
    ASSERT_TRUE(
        drawing_.DrawTextW(target, L"国国", &kFont, box, 0xFF000000, format | DT_SINGLELINE));
    const CRect ink = ink_of(target, CRect(0, 0, 200, 100), kWhite);
    ASSERT_FALSE(ink.IsRectEmpty()) << format;
    const int left = ink.left - box.left, right = box.right - ink.right;
    const int above = ink.top - box.top, below = box.bottom - ink.bottom;
    EXPECT_NEAR(x < 0 ? left : x > 0 ? right : left - right, 0, 8) << format;
    EXPECT_NEAR(y < 0 ? above : y > 0 ? below : above - below, 0, 8) << format;
  }
}

TEST_F(GdiDC, ASingleLineHasNoBreaks) {
  const CRect box(0, 0, 200, 100);
  for (const wchar_t* text : {L"国\n国", L"国\r\n国", L"国\u2028国", L"国\v国"}) {
    const CBufferDC target = buffer(200, 100, kWhite);
    drawing_.DrawTextW(target, text, &kFont, box, 0xFF000000, DT_SINGLELINE | DT_VCENTER);
    const CRect ink = ink_of(target, box, kWhite);
    EXPECT_LE(ink.Height(), 16);
    EXPECT_GT(ink.Width(), 30);
  }
}

TEST_F(GdiDC, PutsABufferOnALayeredWindow) {
  const CString white =
      AfxRegisterWndClass(0, nullptr, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
  CWnd below, above;
  for (CWnd* each : {&below, &above})
    each->CreateEx(each == &above ? WS_EX_LAYERED : 0, white, L"", WS_POPUP | WS_VISIBLE,
                   CRect(0, 0, 200, 100), nullptr, 0);
  below.UpdateWindow();
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
