#include "corvane/platform/controls/button_skin.h"

#include <algorithm>
#include <string_view>

#include "corvane/platform/controls/image_file.h"
#include "corvane/platform/drawing/gdi_dc.h"

namespace corvane {
namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kGrey = RGB(128, 128, 128);
constexpr std::wstring_view kDefaultFace = L"宋体";

LOGFONTW default_font() {
  LOGFONTW font{};
  font.lfHeight = -14;
  font.lfWeight = FW_NORMAL;
  font.lfCharSet = DEFAULT_CHARSET;
  std::copy(kDefaultFace.begin(), kDefaultFace.end(), font.lfFaceName);
  return font;
}

Gdiplus::Color opaque(COLORREF color) {
  return {255, GetRValue(color), GetGValue(color), GetBValue(color)};
}

int brightness(COLORREF color) {
  return (GetRValue(color) * 3 + GetGValue(color) * 6 + GetBValue(color)) / 10;
}

COLORREF shifted(COLORREF color, int by) {
  const auto channel = [by](int value) { return std::clamp(value + by, 0, 255); };
  return RGB(channel(GetRValue(color)), channel(GetGValue(color)), channel(GetBValue(color)));
}

// A face on which the caption's colour can be read; the states differ by shade.
COLORREF plain_face(ButtonLook look, COLORREF text) {
  constexpr std::array<int, kButtonLooks> kShade{0, 12, -24, 0, -12};
  const COLORREF face = brightness(text) > 140 ? RGB(60, 68, 76) : RGB(232, 234, 236);
  return shifted(face, kShade[static_cast<std::size_t>(look)]);
}

void draw_plain_button(HDC dc, const CRect& rect, ButtonLook look, COLORREF text) {
  const COLORREF face = plain_face(look, text);
  const Gdiplus::SolidBrush brush(opaque(face));
  const Gdiplus::Pen pen(opaque(shifted(face, -48)));
  Gdiplus::Graphics graphics(dc);
  graphics.FillRectangle(&brush, rect.left, rect.top, rect.Width(), rect.Height());
  graphics.DrawRectangle(&pen, rect.left, rect.top, rect.Width() - 1, rect.Height() - 1);
}

void draw_focus_ring(HDC dc, CRect rect, COLORREF color) {
  constexpr BYTE kOpacity = 160;
  rect.DeflateRect(2, 2);
  if (rect.Width() < 2 || rect.Height() < 2) return;
  const Gdiplus::Pen pen(
      Gdiplus::Color(kOpacity, GetRValue(color), GetGValue(color), GetBValue(color)));
  Gdiplus::Graphics(dc).DrawRectangle(&pen, rect.left, rect.top, rect.Width() - 1,
                                      rect.Height() - 1);
}

}  // namespace

ButtonSkin::ButtonSkin() : font(default_font()) {
  text_colors.fill(kBlack);
  text_colors[static_cast<int>(ButtonLook::disabled)] = kGrey;
}

ButtonSkin::ButtonSkin(const _MYCONTROL* control, const _MYFONT* font_record) : ButtonSkin() {
  if (font_record != nullptr && font_record->description) font = *font_record->description;
  if (control == nullptr) return;
  const std::array<const CString*, kButtonLooks> names{
      &control->image, &control->hover_image, &control->pressed_image, &control->disabled_image,
      &control->selected_image};
  for (std::size_t i = 0; i < names.size(); ++i) load_skin_image(images[i], *names[i]);
  text_colors = {control->text_color, control->hover_text_color, control->pressed_text_color,
                 control->disabled_text_color, control->selected_text_color};
  padding = {control->padding_left, control->padding_top, control->padding_right,
             control->padding_bottom};
}

Gdiplus::Image* ButtonSkin::image(ButtonLook look) const {
  Gdiplus::Image* const own = images[static_cast<std::size_t>(look)].GetImage();
  return own != nullptr ? own : images[static_cast<std::size_t>(ButtonLook::normal)].GetImage();
}

CRect ButtonSkin::caption_rect(const CRect& button) const {
  CRect rect(button);
  rect.DeflateRect(padding.left, padding.top, padding.right, padding.bottom);
  return rect;
}

void draw_button(HDC dc, const CRect& rect, const ButtonSkin& skin, const CString& caption,
                 const ButtonBehavior::Appearance& appearance) {
  if (dc == nullptr || rect.IsRectEmpty()) return;
  const CGdiDC drawing;
  const COLORREF color = skin.text_color(appearance.look);
  if (!drawing.DrawImage(dc, skin.image(appearance.look), rect)) {
    draw_plain_button(dc, rect, appearance.look, color);
  }
  drawing.DrawTextW(dc, caption, &skin.font, skin.caption_rect(rect), opaque(color).GetValue(),
                    DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  if (appearance.focus_ring) draw_focus_ring(dc, rect, color);
}

}  // namespace corvane
