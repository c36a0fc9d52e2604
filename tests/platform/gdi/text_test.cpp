#include <cmath>
#include <limits>
#include <tuple>

#include "corvane/platform/system/gdi/font_faces.h"
#include "corvane/platform/system/gdi/gdiplus.h"
#include "corvane/platform/system/gdi/text_prefix.h"
#include "corvane/platform/system/gdi/text_utf8.h"
#include "tests/platform/gdi/gdi_fixture.h"

namespace corvane::system {
namespace {

class GdiText : public GdiTest {
 protected:
  GdiText() { select(15, L"宋体"); }

  void select(int height, const wchar_t* face) {
    font.reset();
    font.emplace(
        dc, CreateFontW(height, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, face));
  }
  SIZE extent(const wchar_t* text) {
    SIZE size{};
    GetTextExtentPoint32W(dc, text, static_cast<int>(std::wcslen(text)), &size);
    return size;
  }
  // The background that OPAQUE text fills is its cell.
  RECT cell_of(const wchar_t* text, RECT rect, UINT format) {
    wipe();
    SetBkMode(dc, OPAQUE);
    SetBkColor(dc, RGB(0, 255, 0));
    SetTextColor(dc, RGB(0, 255, 0));
    DrawTextW(dc, text, -1, &rect, format);
    RECT box{};
    count([](int, int, Pixel color) { return color == 0x00FF00; }, &box);
    return box;
  }
  std::optional<Selected> font;
};

TEST_F(GdiText, PositiveHeightIsTheCellNegativeTheCharacter) {
  for (const wchar_t* face :
       {L"宋体", L"微软雅黑", L"Arial", L"Times New Roman", L"no such face", L""})
    for (const int height : {1, 9, 12, 15, 16, 32, 60, 200}) {
      TEXTMETRICW metrics{};
      select(height, face);
      ASSERT_TRUE(GetTextMetricsW(dc, &metrics));
      EXPECT_EQ(metrics.tmHeight, height);
      EXPECT_EQ(metrics.tmAscent + metrics.tmDescent, height);
      EXPECT_EQ(extent(L"中x").cy, height);
      select(-height, face);
      GetTextMetricsW(dc, &metrics);
      EXPECT_EQ(metrics.tmHeight - metrics.tmInternalLeading, height);
    }
}

TEST_F(GdiText, CellsArePlacedByTheFormulas) {
  const int width = extent(L"Hello").cx;
  ASSERT_GT(width, 20);
  ASSERT_LT(width, 60);
  const RECT rect{10, 20, 91, 61};
  const std::tuple<UINT, int, int> cases[] = {
      {DT_SINGLELINE, 10, 20},
      {DT_SINGLELINE | DT_VCENTER, 10, 20 + 41 / 2 - 15 / 2},
      {DT_SINGLELINE | DT_BOTTOM, 10, 61 - 15},
      {DT_VCENTER, 10, 20},
      {DT_BOTTOM, 10, 20},
      {DT_SINGLELINE | DT_CENTER, 10 + (81 - width) / 2, 20},
      {DT_SINGLELINE | DT_RIGHT, 91 - width, 20},
      {DT_SINGLELINE | DT_CENTER | DT_VCENTER, 10 + (81 - width) / 2, 20 + 41 / 2 - 15 / 2},
  };
  for (const auto& [format, x, y] : cases)
    EXPECT_THAT(cell_of(L"Hello", rect, format), test::is_rect(x, y, x + width, y + 15)) << format;
  // Clipped, and centred also when it is wider.
  EXPECT_THAT(cell_of(L"Hello wide text", {40, 20, 60, 30}, DT_SINGLELINE | DT_CENTER),
              test::is_rect(40, 20, 60, 30));
  const int left = 40 + (10 - width) / 2;
  EXPECT_THAT(cell_of(L"Hello", {40, 20, 50, 30}, DT_SINGLELINE | DT_CENTER | DT_NOCLIP),
              test::is_rect(left, 20, left + width, 35));
}

TEST_F(GdiText, CalcRectChangesTheRectangleAndDrawsNothing) {
  RECT rect{10, 20, 15, 25};
  EXPECT_EQ(DrawTextW(dc, L"Hello", -1, &rect, DT_SINGLELINE | DT_CALCRECT), 15);
  EXPECT_THAT(rect, test::is_rect(10, 20, 10 + extent(L"Hello").cx, 35));
  rect = {10, 20, 15, 25};
  EXPECT_EQ(DrawTextW(dc, L"Hello\r\nworld\nagain", -1, &rect, DT_CALCRECT), 45);
  EXPECT_EQ(rect.bottom, 65);
  EXPECT_EQ(rect.right,
            10 + std::max({extent(L"Hello").cx, extent(L"world").cx, extent(L"again").cx}));
  rect = {0, 0, extent(L"one two").cx + 2, 5};
  DrawTextW(dc, L"one two three", -1, &rect, DT_CALCRECT | DT_WORDBREAK);
  EXPECT_EQ(rect.bottom, 30);
  EXPECT_EQ(drawn(), "nothing");
  rect = {10, 20, 15, 25};
  DrawTextW(dc, L"Hello", -1, &rect, DT_SINGLELINE);
  EXPECT_EQ(rect.right, 15);
}

TEST_F(GdiText, PrefixesUnderlineAndDisappear) {
  const std::tuple<const wchar_t*, const wchar_t*, int> cases[] = {
      {L"&File", L"File", 0}, {L"Sa&ve", L"Save", 2}, {L"a && b", L"a & b", -1},
      {L"end&", L"end", -1},  {L"&a&b", L"ab", 1},    {L"", L"", -1}};
  for (const auto& [text, shown, underlined] : cases) {
    const PrefixedText result = without_prefixes(text);
    EXPECT_EQ(result.text, shown);
    EXPECT_EQ(result.underlined, underlined) << text;
  }
  for (const auto& [flag, shown] : {std::pair(0u, L"File"), std::pair(DT_NOPREFIX, L"&File")}) {
    RECT rect{0, 0, 0, 0};
    DrawTextW(dc, L"&File", -1, &rect, DT_SINGLELINE | DT_CALCRECT | flag);
    EXPECT_EQ(rect.right, extent(shown).cx);
  }
}

TEST_F(GdiText, LettersAreDrawnInTheirColourInsideTheClip) {
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, RGB(255, 0, 0));
  select(60, L"黑体");
  RECT rect{0, 0, 100, 100};
  DrawTextW(dc, L"田", -1, &rect, DT_SINGLELINE | DT_VCENTER | DT_CENTER);
  EXPECT_GT(count([](int, int, Pixel color) { return color == 0xFF0000; }), 300);
  EXPECT_EQ(surface->at(2, 2), kWhite);  // no background
  EXPECT_FALSE(surface->take_marks().empty());
  wipe();
  IntersectClipRect(dc, 0, 0, 50, 100);
  DrawTextW(dc, L"田", -1, &rect, DT_SINGLELINE | DT_VCENTER | DT_CENTER);
  EXPECT_EQ(count([](int x, int, Pixel color) { return x >= 50 && color != kWhite; }), 0);
  EXPECT_NE(drawn(), "nothing");
}

TEST_F(GdiText, InkStaysInsideTheCell) {
  SetBkMode(dc, TRANSPARENT);
  select(40, L"宋体");
  RECT rect{5, 30, 95, 70};
  DrawTextW(dc, L"国gÅ", -1, &rect, DT_SINGLELINE | DT_NOCLIP);
  EXPECT_EQ(count([](int, int y, Pixel color) { return (y < 28 || y > 71) && color != kWhite; }),
            0);
}

TEST_F(GdiText, OddTextIsHarmless) {
  const wchar_t odd[] = {0xD800, 0x110000, 0x01, L'\t', 0, 0xFFFF, L'x'};
  RECT rect{0, 0, 100, 100};
  EXPECT_NE(DrawTextW(dc, odd, 7, &rect, 0), 0);
  EXPECT_TRUE(TextOutW(dc, 2147483647, -2147483647, odd, 7));
  const std::wstring huge(200000, L'\n');
  EXPECT_NE(DrawTextW(dc, huge.c_str(), -1, &rect, DT_WORDBREAK), 0);
  rect = {2147483647, 2147483647, -2147483647, -2147483647};
  DrawTextW(dc, L"x", 1, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  constexpr LONG kLeast = std::numeric_limits<LONG>::min();
  rect = {kLeast, kLeast, 0, 0};
  EXPECT_EQ(DrawTextW(dc, L"two words", -1, &rect, DT_WORDBREAK | DT_CALCRECT),
            extent(L"two words").cy);
  EXPECT_FALSE(ExtTextOutW(dc, 0, 0, 0, nullptr, huge.c_str(), 200000, nullptr));
  EXPECT_EQ(to_utf8({odd, 2}), "\xEF\xBF\xBD\xEF\xBF\xBD");
  const wchar_t pair[] = {0xD83D, 0xDE00};
  EXPECT_EQ(to_utf8({pair, 2}), "\xF0\x9F\x98\x80");
  for (const LONG height : {LONG{2000000000}, kLeast}) {
    select(height, L"宋体");
    EXPECT_TRUE(TextOutW(dc, 0, 0, L"x", 1));
  }
}

TEST_F(GdiText, SpacingPlacesEachCharacter) {
  SetBkMode(dc, OPAQUE);
  SetBkColor(dc, RGB(0, 255, 0));
  const INT spacing[] = {40, 10};
  EXPECT_TRUE(ExtTextOutW(dc, 5, 5, 0, nullptr, L"ii", 2, spacing));
  expect_dots({{5, 5, 0x00FF00}, {30, 10, kWhite}, {45, 5, 0x00FF00}});
}

TEST_F(GdiText, HostsChangeTheFaceTable) {
  EXPECT_EQ(font_families(L"SimSun"), font_families(L"宋体"));
  EXPECT_EQ(font_families(L"@宋体"), font_families(L"宋体"));
  map_font_face(L"House Face", "DejaVu Sans");
  EXPECT_EQ(font_families(L"house face"), "DejaVu Sans");
  map_font_face(L"House Face", "");
  EXPECT_NE(font_families(L"house face"), "DejaVu Sans");
}

TEST_F(GdiText, GdiPlusStringsAreAlignedAndClipped) {
  using namespace Gdiplus;
  LOGFONTW description{};
  description.lfHeight = 30;
  const Gdiplus::Font used(dc, &description);
  const SolidBrush red(Color(255, 255, 0, 0));
  StringFormat format(StringFormatFlagsNoWrap);
  format.SetAlignment(StringAlignmentFar);
  format.SetLineAlignment(StringAlignmentFar);
  Graphics graphics(dc);
  EXPECT_EQ(graphics.DrawString(L"HH\nHH", -1, &used, {0, 0, 100, 100}, &format, &red), Ok);
  EXPECT_EQ(surface->at(10, 80), kWhite);
  EXPECT_NE(drawn(), "nothing");
  EXPECT_EQ(count([](int, int y, Pixel color) { return y < 39 && color != kWhite; }), 0);
  wipe();
  graphics.DrawString(L"HHHHHHHH", -1, &used, {20, 20, 30, 30}, &format, &red);
  RECT ink{};
  EXPECT_GT(count([](int, int, Pixel color) { return color != kWhite; }, &ink), 0);
  EXPECT_TRUE(Region(RECT{20, 20, 50, 50}).covers(ink));
  EXPECT_EQ(graphics.DrawString(nullptr, -1, &used, {}, nullptr, &red), InvalidParameter);
  EXPECT_EQ(graphics.DrawString(L"x", 1, nullptr, {}, nullptr, &red), InvalidParameter);
}

}  // namespace
}  // namespace corvane::system
