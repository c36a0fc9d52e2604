#include "corvane/platform/system/common_controls/static_control.h"

#include <string>

namespace corvane::system {
namespace {

// A rectangle or frame in one colour, by the low bits of the style.
struct Shape {
  DWORD type;
  bool filled;
  int color;  // COLOR_*
};
constexpr Shape kShapes[] = {
    {SS_BLACKRECT, true, COLOR_WINDOWFRAME},  {SS_GRAYRECT, true, COLOR_BTNSHADOW},
    {SS_WHITERECT, true, COLOR_WINDOW},       {SS_BLACKFRAME, false, COLOR_WINDOWFRAME},
    {SS_GRAYFRAME, false, COLOR_BTNSHADOW},   {SS_WHITEFRAME, false, COLOR_WINDOW},
    {SS_ETCHEDFRAME, false, COLOR_BTNSHADOW},
};

const Shape* shape_of(DWORD type) {
  for (const Shape& shape : kShapes) {
    if (shape.type == type) return &shape;
  }
  return nullptr;
}

UINT text_format(DWORD type, DWORD style) {
  UINT format = type == SS_CENTER ? DT_CENTER : type == SS_RIGHT ? DT_RIGHT : DT_LEFT;
  const bool one_line = type == SS_SIMPLE || type == SS_LEFTNOWORDWRAP ||
                        (style & (SS_CENTERIMAGE | SS_ENDELLIPSIS)) != 0;
  format |= one_line ? DT_SINGLELINE : DT_WORDBREAK;
  if ((style & SS_CENTERIMAGE) != 0) format |= DT_VCENTER;
  if ((style & SS_ENDELLIPSIS) != 0) format |= DT_END_ELLIPSIS;
  if ((style & SS_NOPREFIX) != 0) format |= DT_NOPREFIX;
  return format;
}

}  // namespace

const ControlMessage<StaticControl> StaticControl::kMessages[] = {
    {WM_NCHITTEST, &StaticControl::on_hit_test},
    {WM_GETDLGCODE, &StaticControl::on_dialog_code},
    {WM_LBUTTONDOWN, &StaticControl::on_press},
    {WM_LBUTTONDBLCLK, &StaticControl::on_double_click},
    {WM_ENABLE, &StaticControl::on_enable},
    {STM_SETIMAGE, &StaticControl::on_set_image},
    {STM_GETIMAGE, &StaticControl::on_get_image},
};

LRESULT StaticControl::handle(UINT message, WPARAM wparam, LPARAM lparam) {
  const auto* entry = entry_for(kMessages, message);
  return entry != nullptr ? (this->*entry->handler)(wparam, lparam)
                          : handle_shared(message, wparam, lparam);
}

LRESULT StaticControl::on_hit_test(WPARAM, LPARAM) {
  return (style() & SS_NOTIFY) != 0 ? HTCLIENT : HTTRANSPARENT;
}

LRESULT StaticControl::on_dialog_code(WPARAM, LPARAM) { return DLGC_STATIC; }

LRESULT StaticControl::on_press(WPARAM, LPARAM) {
  if ((style() & SS_NOTIFY) != 0) tell_parent(STN_CLICKED);
  return 0;
}

LRESULT StaticControl::on_double_click(WPARAM, LPARAM) {
  if ((style() & SS_NOTIFY) != 0) tell_parent(STN_DBLCLK);
  return 0;
}

LRESULT StaticControl::on_enable(WPARAM enabled, LPARAM) {
  redraw();
  if ((style() & SS_NOTIFY) != 0) tell_parent(enabled != 0 ? STN_ENABLE : STN_DISABLE);
  return 0;
}

LRESULT StaticControl::on_set_image(WPARAM kind, LPARAM image) {
  if (kind != IMAGE_BITMAP || (style() & SS_TYPEMASK) != SS_BITMAP) return 0;
  HBITMAP previous = bitmap_;
  bitmap_ = reinterpret_cast<HBITMAP>(image);
  BITMAP facts{};
  const bool known = bitmap_ != nullptr && GetObjectW(bitmap_, sizeof(facts), &facts) != 0;
  if (known && (style() & SS_CENTERIMAGE) == 0) {
    RECT frame{0, 0, facts.bmWidth, facts.bmHeight};
    AdjustWindowRectEx(&frame, style(), FALSE,
                       static_cast<DWORD>(GetWindowLongW(window(), GWL_EXSTYLE)));
    SetWindowPos(window(), nullptr, 0, 0, frame.right - frame.left, frame.bottom - frame.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  redraw();
  return reinterpret_cast<LRESULT>(previous);
}

LRESULT StaticControl::on_get_image(WPARAM kind, LPARAM) {
  return kind == IMAGE_BITMAP ? reinterpret_cast<LRESULT>(bitmap_) : 0;
}

void StaticControl::paint(HDC dc) {
  const DWORD type = style() & SS_TYPEMASK;
  const RECT area = client();
  const Shape* shape = shape_of(type);
  if (shape != nullptr && shape->filled) {
    FillRect(dc, &area, GetSysColorBrush(shape->color));
    return;
  }
  FillRect(dc, &area, background(dc, WM_CTLCOLORSTATIC));
  if (shape != nullptr) {
    FrameRect(dc, &area, GetSysColorBrush(shape->color));
  } else if (type == SS_ETCHEDHORZ || type == SS_ETCHEDVERT) {
    const RECT line =
        type == SS_ETCHEDHORZ ? RECT{0, 0, area.right, 1} : RECT{0, 0, 1, area.bottom};
    FillRect(dc, &line, GetSysColorBrush(COLOR_BTNSHADOW));
  } else if (type == SS_BITMAP) {
    paint_bitmap(dc);
  } else {
    paint_text(dc, type);
  }
}

void StaticControl::paint_text(HDC dc, DWORD type) const {
  const std::wstring text = this->text();
  RECT area = client();
  if (!enabled()) SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &area, text_format(type, style()));
}

void StaticControl::paint_bitmap(HDC dc) const {
  BITMAP facts{};
  if (bitmap_ == nullptr || GetObjectW(bitmap_, sizeof(facts), &facts) == 0) return;
  const RECT area = client();
  const bool centred = (style() & SS_CENTERIMAGE) != 0;
  const int x = centred ? (area.right - facts.bmWidth) / 2 : 0;
  const int y = centred ? (area.bottom - facts.bmHeight) / 2 : 0;
  HDC source = CreateCompatibleDC(dc);
  const HGDIOBJ old = SelectObject(source, bitmap_);
  BitBlt(dc, x, y, facts.bmWidth, facts.bmHeight, source, 0, 0, SRCCOPY);
  SelectObject(source, old);
  DeleteDC(source);
}

}  // namespace corvane::system
