#include "corvane/platform/system/common_controls/button_painting.h"

#include <algorithm>

#include "corvane/platform/system/user/painting/soft_shapes.h"

namespace corvane::system {
namespace {

constexpr COLORREF kFace = RGB(0xFB, 0xFC, 0xFD);
constexpr COLORREF kFacePushed = RGB(0xDD, 0xE6, 0xF3);
constexpr COLORREF kEdge = RGB(0xB4, 0xBC, 0xC6);
constexpr COLORREF kEdgeDisabled = RGB(0xD5, 0xDA, 0xE0);
constexpr COLORREF kAccent = RGB(0x2F, 0x6F, 0xC9);
constexpr COLORREF kText = RGB(0x1F, 0x27, 0x30);
constexpr COLORREF kTextDisabled = RGB(0x9A, 0xA3, 0xAD);
constexpr COLORREF kGroupEdge = RGB(0xD0, 0xD6, 0xDD);

constexpr int kMarkSize = 14;  // pixels, of the box or circle
constexpr int kMarkGap = 6;    // between it and the text
constexpr int kDotMargin = 4;
constexpr int kGroupIndent = 9;
constexpr int kFocusInset = 3;

RECT inset(RECT rect, int by) {
  InflateRect(&rect, -by, -by);
  return rect;
}

UINT alignment(DWORD style, UINT otherwise) {
  switch (style & BS_CENTER) {
    case BS_LEFT:
      return DT_LEFT;
    case BS_RIGHT:
      return DT_RIGHT;
    case BS_CENTER:
      return DT_CENTER;
    default:
      return otherwise;
  }
}

// In the middle of the height. Returns where the text stands.
RECT draw_text(HDC dc, const RECT& area, const ButtonLook& look, UINT align) {
  const int length = static_cast<int>(look.text.size());
  const UINT lines = (look.style & BS_MULTILINE) != 0 ? DT_WORDBREAK : DT_SINGLELINE;
  RECT size{0, 0, area.right - area.left, 0};
  DrawTextW(dc, look.text.c_str(), length, &size, lines | DT_CALCRECT);
  RECT place = area;
  place.top += std::max<LONG>(0, area.bottom - area.top - size.bottom) / 2;
  place.bottom = place.top + size.bottom;
  SetTextColor(dc, look.enabled ? kText : kTextDisabled);
  DrawTextW(dc, look.text.c_str(), length, &place, lines | align);
  place.right = std::min(place.right, place.left + size.right);
  return place;
}

void paint_push(HDC dc, const RECT& area, const ButtonLook& look) {
  const bool is_default = (look.style & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
  const bool marked = look.enabled && (is_default || look.focused);
  fill_rect(dc, area, look.pushed ? kFacePushed : kFace);
  frame_rect(dc, area, !look.enabled ? kEdgeDisabled : marked ? kAccent : kEdge);
  if (look.focused) frame_rect(dc, inset(area, kFocusInset), mixed(kFace, kAccent, 0.4));
  draw_text(dc, inset(area, kFocusInset + 1), look, alignment(look.style, DT_CENTER));
}

void draw_tick(HDC dc, const RECT& box, COLORREF color) {
  HPEN pen = CreatePen(PS_SOLID, 2, color);
  const HGDIOBJ old = SelectObject(dc, pen);
  MoveToEx(dc, box.left + 3, box.top + 7, nullptr);
  LineTo(dc, box.left + 6, box.top + 10);
  LineTo(dc, box.left + 11, box.top + 4);
  SelectObject(dc, old);
  DeleteObject(pen);
}

void paint_box(HDC dc, const RECT& box, const ButtonLook& look) {
  const bool filled = look.check != BST_UNCHECKED;
  const COLORREF accent = look.enabled ? kAccent : kEdge;
  const COLORREF empty = look.pushed ? kFacePushed : kFace;
  fill_rect(dc, box, filled ? accent : empty);
  frame_rect(dc, box, filled || look.focused ? accent : kEdge);
  if (look.check == BST_CHECKED) draw_tick(dc, box, kFace);
  if (look.check == BST_INDETERMINATE) fill_rect(dc, inset(box, kDotMargin), kFace);
}

void paint_circle(HDC dc, const RECT& box, const ButtonLook& look) {
  const COLORREF seen = GetPixel(dc, box.left, box.top);
  const COLORREF under = seen != CLR_INVALID ? seen : GetSysColor(COLOR_BTNFACE);
  const bool filled = look.check != BST_UNCHECKED;
  const COLORREF edge = filled || look.focused ? (look.enabled ? kAccent : kEdge) : kEdge;
  const COLORREF inner = filled ? edge : look.pushed ? kFacePushed : kFace;
  fill_disc(dc, box.left, box.top, kMarkSize, edge, under);
  fill_disc(dc, box.left + 1, box.top + 1, kMarkSize - 2, inner, edge);
  if (!filled) return;
  fill_disc(dc, box.left + kDotMargin, box.top + kDotMargin, kMarkSize - 2 * kDotMargin, kFace,
            inner);
}

void paint_marked(HDC dc, const RECT& area, const ButtonLook& look, ButtonKind kind) {
  const bool on_right = (look.style & BS_LEFTTEXT) != 0;
  const int left = on_right ? area.right - kMarkSize : area.left;
  const int top = area.top + (area.bottom - area.top - kMarkSize) / 2;
  const RECT box{left, top, left + kMarkSize, top + kMarkSize};
  if (kind == ButtonKind::check) {
    paint_box(dc, box, look);
  } else {
    paint_circle(dc, box, look);
  }
  RECT rest = area;
  (on_right ? rest.right : rest.left) += on_right ? -(kMarkSize + kMarkGap) : kMarkSize + kMarkGap;
  RECT place = draw_text(dc, rest, look, alignment(look.style, DT_LEFT));
  if (!look.focused || look.text.empty()) return;
  InflateRect(&place, 2, 1);
  frame_rect(dc, place, mixed(kFace, kAccent, 0.4));
}

void paint_group(HDC dc, const RECT& area, const ButtonLook& look) {
  SIZE size{};
  GetTextExtentPoint32W(dc, L"x", 1, &size);
  const RECT edge{area.left, area.top + size.cy / 2, area.right, area.bottom};
  frame_rect(dc, edge, kGroupEdge);
  if (look.text.empty()) return;
  const int length = static_cast<int>(look.text.size());
  RECT place{};
  DrawTextW(dc, look.text.c_str(), length, &place, DT_SINGLELINE | DT_CALCRECT);
  OffsetRect(&place, area.left + kGroupIndent, area.top);
  const RECT gap{place.left - 2, place.top, place.right + 2, place.bottom};
  FillRect(dc, &gap, look.background);
  SetTextColor(dc, look.enabled ? kText : kTextDisabled);
  DrawTextW(dc, look.text.c_str(), length, &place, DT_SINGLELINE);
}

}  // namespace

ButtonKind kind_of_button(UINT type) {
  switch (type) {
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
    case BS_3STATE:
    case BS_AUTO3STATE:
      return ButtonKind::check;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
      return ButtonKind::radio;
    case BS_GROUPBOX:
      return ButtonKind::group;
    default:
      return ButtonKind::push;
  }
}

void paint_button(HDC dc, const RECT& area, const ButtonLook& look) {
  const ButtonKind kind = kind_of_button(look.style & BS_TYPEMASK);
  if (kind == ButtonKind::push) {
    paint_push(dc, area, look);
  } else if (kind == ButtonKind::group) {
    paint_group(dc, area, look);
  } else {
    paint_marked(dc, area, look, kind);
  }
}

}  // namespace corvane::system
