// The system colours and the stock objects.
#include <cwchar>
#include <iterator>

#include "corvane/platform/system/gdi/gdi_impl.h"

namespace corvane::system {

namespace {

// By the platform's colour index, from COLOR_SCROLLBAR to COLOR_MENUBAR.
constexpr COLORREF kColors[kSystemColors] = {
    RGB(200, 200, 200), RGB(0, 0, 0),       RGB(153, 180, 209), RGB(191, 205, 219),
    RGB(240, 240, 240), RGB(255, 255, 255), RGB(100, 100, 100), RGB(0, 0, 0),
    RGB(0, 0, 0),       RGB(0, 0, 0),       RGB(180, 180, 180), RGB(244, 247, 252),
    RGB(171, 171, 171), RGB(0, 120, 215),   RGB(255, 255, 255), RGB(240, 240, 240),
    RGB(160, 160, 160), RGB(109, 109, 109), RGB(0, 0, 0),       RGB(0, 0, 0),
    RGB(255, 255, 255), RGB(105, 105, 105), RGB(227, 227, 227), RGB(0, 0, 0),
    RGB(255, 255, 225), RGB(0, 0, 0),       RGB(0, 102, 204),   RGB(185, 209, 234),
    RGB(215, 228, 242), RGB(0, 120, 215),   RGB(240, 240, 240)};

GdiObject stock_brush(std::optional<COLORREF> color) {
  return {.kind = BrushObject{color}, .stock = true};
}

GdiObject stock_pen(int style, COLORREF color) {
  return {.kind = PenObject{style, 1, color}, .stock = true};
}

GdiObject stock_font(LONG height) {
  FontObject font;
  font.description.lfHeight = height;
  font.description.lfWeight = FW_NORMAL;
  font.description.lfCharSet = DEFAULT_CHARSET;
  std::wcsncpy(font.description.lfFaceName, L"System", LF_FACESIZE - 1);
  return {.kind = font, .stock = true};
}

}  // namespace

COLORREF system_color(int index) {
  return index >= 0 && index < kSystemColors ? kColors[index] : 0;
}

void add_stock_objects(Gdi::Impl& tables) {
  const auto add = [&tables](int which, GdiObject object) {
    tables.stock[static_cast<std::size_t>(which)] = tables.add(std::move(object));
  };
  add(WHITE_BRUSH, stock_brush(RGB(255, 255, 255)));
  add(LTGRAY_BRUSH, stock_brush(RGB(192, 192, 192)));
  add(GRAY_BRUSH, stock_brush(RGB(128, 128, 128)));
  add(DKGRAY_BRUSH, stock_brush(RGB(64, 64, 64)));
  add(BLACK_BRUSH, stock_brush(RGB(0, 0, 0)));
  add(NULL_BRUSH, stock_brush(std::nullopt));
  add(WHITE_PEN, stock_pen(PS_SOLID, RGB(255, 255, 255)));
  add(BLACK_PEN, stock_pen(PS_SOLID, RGB(0, 0, 0)));
  add(NULL_PEN, stock_pen(PS_NULL, RGB(0, 0, 0)));
  add(SYSTEM_FONT, stock_font(16));
  add(DEFAULT_GUI_FONT, stock_font(-12));
  for (int index = 0; index < kSystemColors; ++index) {
    tables.system_brushes[static_cast<std::size_t>(index)] =
        static_cast<HBRUSH>(tables.add(stock_brush(kColors[index])));
  }
  BitmapObject bitmap{std::make_shared<Surface>(1, 1), true, nullptr};
  tables.default_bitmap =
      static_cast<HBITMAP>(tables.add({.kind = std::move(bitmap), .stock = true}));
}

}  // namespace corvane::system

namespace corvane_system {

using corvane::system::Gdi;

HGDIOBJ GetStockObject(int which) {
  Gdi* gdi = Gdi::current();
  if (gdi == nullptr || which < 0 || which >= corvane::system::kStockObjects) return nullptr;
  return gdi->impl().stock[static_cast<std::size_t>(which)];
}

HBRUSH GetSysColorBrush(int index) {
  Gdi* gdi = Gdi::current();
  if (gdi == nullptr || index < 0 || index >= corvane::system::kSystemColors) return nullptr;
  return gdi->impl().system_brushes[static_cast<std::size_t>(index)];
}

COLORREF GetSysColor(int index) { return corvane::system::system_color(index); }

}  // namespace corvane_system
