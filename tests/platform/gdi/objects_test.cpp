#include <cstring>
#include <limits>

#include "corvane/platform/system/gdi/gdiplus.h"
#include "tests/platform/gdi/gdi_fixture.h"

namespace corvane::system {
namespace {

class GdiObjects : public GdiTest {};

TEST_F(GdiObjects, SelectedObjectsSurviveDeletion) {
  HPEN pen = CreatePen(PS_SOLID, 1, RGB(1, 1, 1));
  HGDIOBJ before = SelectObject(dc, pen);
  EXPECT_FALSE(DeleteObject(pen));
  MoveToEx(dc, 0, 0, nullptr);
  EXPECT_TRUE(LineTo(dc, 5, 0));
  EXPECT_EQ(drawn(), "0,0,5,1 5");
  EXPECT_EQ(SelectObject(dc, before), pen);
  EXPECT_TRUE(DeleteObject(pen));
  EXPECT_FALSE(DeleteObject(pen));
  EXPECT_EQ(SelectObject(dc, pen), nullptr);
}

TEST_F(GdiObjects, ObjectsDeletedWhileSelectedGoWithTheContext) {
  HDC other = open(surface);
  HBRUSH brush = CreateSolidBrush(0);
  HPEN kept = CreatePen(PS_SOLID, 1, 0);
  SelectObject(other, brush);
  SelectObject(other, kept);
  DeleteObject(brush);
  gdi.close_dc(other);
  EXPECT_EQ(gdi.live_objects(), 2);  // the fixture's context and the pen
  EXPECT_TRUE(DeleteObject(kept));
}

TEST_F(GdiObjects, ABitmapFitsIntoOneContextOnly) {
  HDC first = CreateCompatibleDC(dc), second = CreateCompatibleDC(dc);
  HBITMAP bitmap = CreateCompatibleBitmap(dc, 5, 5);
  HGDIOBJ fresh = SelectObject(first, bitmap);
  EXPECT_NE(fresh, nullptr);
  EXPECT_EQ(SelectObject(second, bitmap), nullptr);
  EXPECT_EQ(SelectObject(dc, bitmap), nullptr);  // not a memory context
  EXPECT_FALSE(DeleteObject(bitmap));
  EXPECT_EQ(SelectObject(first, fresh), bitmap);
  EXPECT_NE(SelectObject(second, bitmap), nullptr);
  EXPECT_TRUE(DeleteDC(second));
  EXPECT_TRUE(DeleteObject(bitmap));
  EXPECT_TRUE(DeleteDC(first));
  EXPECT_FALSE(DeleteDC(first));
  EXPECT_FALSE(DeleteDC(dc));
  EXPECT_FALSE(gdi.close_dc(nullptr));
}

TEST_F(GdiObjects, ImpossibleSizesFail) {
  for (const SIZE size : {SIZE{100000, 100000}, {-1, 5}, {5, -1}, {40000, 40000}, {2147483647, 1}})
    EXPECT_EQ(CreateCompatibleBitmap(dc, size.cx, size.cy), nullptr) << size.cx << "x" << size.cy;
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), 4, 4, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = &info;
  EXPECT_EQ(CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0), nullptr);
  EXPECT_EQ(bits, nullptr);
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biHeight = std::numeric_limits<LONG>::min();
  EXPECT_EQ(CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0), nullptr);
}

// Every function, with a handle that names nothing and without its pointers.
TEST_F(GdiObjects, BadHandlesAndPointersFailSoftly) {
  HDC stale = open(surface);
  gdi.close_dc(stale);
  SIZE size{};
  RECT rect{0, 0, 10, 10};
  TEXTMETRICW metrics{};
  for (HDC bad :
       {HDC{nullptr}, stale, reinterpret_cast<HDC>(0x1234), reinterpret_cast<HDC>(~0ull)}) {
    SetLastError(0);
    EXPECT_FALSE(MoveToEx(bad, 1, 1, nullptr));
    EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
    EXPECT_FALSE(LineTo(bad, 1, 1));
    EXPECT_EQ(FillRect(bad, &rect, GetSysColorBrush(0)), 0);
    EXPECT_FALSE(Rectangle(bad, 0, 0, 5, 5));
    EXPECT_FALSE(BitBlt(bad, 0, 0, 1, 1, dc, 0, 0, SRCCOPY));
    EXPECT_FALSE(BitBlt(dc, 0, 0, 1, 1, bad, 0, 0, SRCCOPY));
    EXPECT_EQ(DrawTextW(bad, L"x", 1, &rect, 0), 0);
    EXPECT_FALSE(ExtTextOutW(bad, 0, 0, 0, nullptr, L"x", 1, nullptr));
    EXPECT_FALSE(GetTextExtentPoint32W(bad, L"x", 1, &size));
    EXPECT_FALSE(GetTextMetricsW(bad, &metrics));
    EXPECT_EQ(SelectObject(bad, GetStockObject(BLACK_PEN)), nullptr);
    EXPECT_EQ(SetTextColor(bad, 0), CLR_INVALID);
    EXPECT_EQ(SetBkMode(bad, OPAQUE), 0);
    EXPECT_EQ(SaveDC(bad), 0);
    EXPECT_FALSE(RestoreDC(bad, -1));
    EXPECT_EQ(GetClipBox(bad, &rect), 0);
    EXPECT_EQ(IntersectClipRect(bad, 0, 0, 5, 5), 0);
    EXPECT_EQ(ExcludeClipRect(bad, 0, 0, 5, 5), 0);
    EXPECT_FALSE(RectVisible(bad, &rect));
    EXPECT_FALSE(SetViewportOrgEx(bad, 0, 0, nullptr));
    EXPECT_EQ(CreateCompatibleBitmap(bad, 1, 1), nullptr);
    EXPECT_EQ(CreateCompatibleDC(bad ? bad : stale), nullptr);
    EXPECT_EQ(gdi.dc_surface(bad, nullptr), nullptr);
    Gdiplus::Graphics graphics(bad);
    EXPECT_EQ(graphics.GetLastStatus(), Gdiplus::InvalidParameter);
  }
  EXPECT_EQ(FillRect(dc, nullptr, GetSysColorBrush(0)), 0);
  EXPECT_EQ(FillRect(dc, &rect, reinterpret_cast<HBRUSH>(dc)), 0);
  EXPECT_EQ(GetClipBox(dc, nullptr), 0);
  EXPECT_FALSE(RectVisible(dc, nullptr));
  for (const int length : {-1, 1}) EXPECT_EQ(DrawTextW(dc, nullptr, length, &rect, 0), 0);
  EXPECT_EQ(DrawTextW(dc, L"x", 1, nullptr, 0), 0);
  EXPECT_FALSE(GetTextExtentPoint32W(dc, L"x", 1, nullptr));
  EXPECT_FALSE(GetTextMetricsW(dc, nullptr));
  EXPECT_FALSE(ExtTextOutW(dc, 0, 0, 0, nullptr, nullptr, 5, nullptr));
  EXPECT_EQ(CreateFontIndirectW(nullptr), nullptr);
  EXPECT_EQ(GetStockObject(-1), nullptr);
  EXPECT_EQ(GetStockObject(9), nullptr);
  EXPECT_FALSE(DeleteObject(nullptr));
  EXPECT_EQ(drawn(), "nothing");
}

TEST_F(GdiObjects, HandlesOfAnotherSystemNameNothing) {
  HPEN pen = CreatePen(PS_SOLID, 1, 0);
  {
    Gdi other;
    Gdi::set_current(&other);
    EXPECT_FALSE(DeleteObject(pen));
    EXPECT_FALSE(LineTo(dc, 5, 5));
    EXPECT_EQ(other.live_objects(), 0);
  }
  EXPECT_EQ(Gdi::current(), nullptr);
  EXPECT_EQ(CreateSolidBrush(0), nullptr);
  EXPECT_EQ(GetStockObject(BLACK_PEN), nullptr);
  EXPECT_EQ(GetObjectW(pen, 0, nullptr), 0);
  Gdi::set_current(&gdi);
  EXPECT_TRUE(DeleteObject(pen));
}

TEST_F(GdiObjects, SaveAndRestore) {
  HPEN pen = CreatePen(PS_SOLID, 1, RGB(9, 9, 9));
  SetTextColor(dc, RGB(1, 0, 0));
  EXPECT_EQ(SaveDC(dc), 1);
  HGDIOBJ before = SelectObject(dc, pen);
  SetTextColor(dc, RGB(2, 0, 0));
  IntersectClipRect(dc, 0, 0, 10, 10);
  EXPECT_EQ(SaveDC(dc), 2);
  SetTextColor(dc, RGB(3, 0, 0));
  SetViewportOrgEx(dc, 7, 7, nullptr);
  EXPECT_TRUE(RestoreDC(dc, -1));
  EXPECT_EQ(GetTextColor(dc), static_cast<COLORREF>(RGB(2, 0, 0)));
  EXPECT_TRUE(RestoreDC(dc, 1));
  EXPECT_EQ(GetTextColor(dc), static_cast<COLORREF>(RGB(1, 0, 0)));
  EXPECT_EQ(GetCurrentObject(dc, OBJ_PEN), before);
  RECT box{};
  GetClipBox(dc, &box);
  EXPECT_EQ(box.right, kSize);
  EXPECT_FALSE(RestoreDC(dc, 1));
  EXPECT_FALSE(RestoreDC(dc, 0));
  EXPECT_TRUE(DeleteObject(pen));
}

TEST_F(GdiObjects, FontDescriptionIsGivenBack) {
  constexpr int kWhole = sizeof(LOGFONTW);
  HFONT font = CreateFontW(15, 0, 0, 0, FW_BOLD, 1, 0, 0, DEFAULT_CHARSET, 0, 0,
                           ANTIALIASED_QUALITY, 0, L"a face name that is much too long for it");
  LOGFONTW description{};
  EXPECT_EQ(GetObjectW(font, kWhole, &description), kWhole);
  EXPECT_EQ(description.lfHeight, 15);
  EXPECT_EQ(description.lfWeight, FW_BOLD);
  EXPECT_EQ(std::wstring(description.lfFaceName), L"a face name that is much too lo");
  EXPECT_EQ(GetObjectW(font, 3, &description), 0);
  EXPECT_EQ(GetObjectW(font, 0, nullptr), kWhole);
  DeleteObject(font);
}

}  // namespace
}  // namespace corvane::system
