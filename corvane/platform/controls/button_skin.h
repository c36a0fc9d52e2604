#pragma once
// The look of one button and how it is drawn.
#include <array>

#include "corvane/platform/controls/button_behavior.h"
#include "corvane/platform/framework/c_string.h"
#include "corvane/platform/framework/rect.h"
#include "corvane/platform/images/gdi_image.h"
#include "corvane/platform/platform.h"
#include "corvane/platform/skin_reader/records.h"

namespace corvane {

struct ButtonSkin {
  ButtonSkin();  // no images, black text in the default font
  // Decodes the control's images from the image folder. Both records may be null.
  ButtonSkin(const _MYCONTROL* control, const _MYFONT* font);

  // The image of a look, or else the normal one; null: the button is drawn from its colours.
  Gdiplus::Image* image(ButtonLook look) const;
  COLORREF text_color(ButtonLook look) const { return text_colors[static_cast<int>(look)]; }
  // Where the caption goes in a button of that rectangle.
  CRect caption_rect(const CRect& button) const;

  std::array<CGdiImage, kButtonLooks> images;
  std::array<COLORREF, kButtonLooks> text_colors;
  CRect padding;  // distances from the button's edges, pixels
  LOGFONTW font;
};

// Draws image, caption and focus ring into the rectangle; what lies behind is left to the caller.
void draw_button(HDC dc, const CRect& rect, const ButtonSkin& skin, const CString& caption,
                 const ButtonBehavior::Appearance& appearance);

}  // namespace corvane
