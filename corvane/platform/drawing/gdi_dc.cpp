#include "corvane/platform/drawing/gdi_dc.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace corvane {
namespace {

using Gdiplus::REAL;

// The image's outer pixels keep their full strength when pixels are taken by their area.
void prepare_for_images(Gdiplus::Graphics& graphics) {
  graphics.SetInterpolationMode(Gdiplus::InterpolationModeBilinear);
  graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
}

Gdiplus::Rect plus_rect(const CRect& rect) {
  return {static_cast<INT>(rect.left), static_cast<INT>(rect.top), rect.Width(), rect.Height()};
}

void rotate_about(Gdiplus::Graphics& graphics, REAL x, REAL y, int angle) {
  graphics.TranslateTransform(x, y);
  graphics.RotateTransform(static_cast<REAL>(angle));
  graphics.TranslateTransform(-x, -y);
}

Gdiplus::StringAlignment alignment(UINT format, UINT centred, UINT at_end) {
  if (format & centred) return Gdiplus::StringAlignmentCenter;
  return format & at_end ? Gdiplus::StringAlignmentFar : Gdiplus::StringAlignmentNear;
}

// A single line has no breaks in it.
std::wstring without_line_breaks(std::wstring text) {
  constexpr std::wstring_view kBreaks = L"\n\r\v\f\u0085\u2028\u2029";
  for (wchar_t& character : text) {
    if (kBreaks.find(character) != kBreaks.npos) character = L' ';
  }
  return text;
}

void set_format(Gdiplus::StringFormat& string_format, UINT format) {
  INT flags = 0;
  if (format & DT_SINGLELINE) flags |= Gdiplus::StringFormatFlagsNoWrap;
  if (format & DT_NOCLIP) flags |= Gdiplus::StringFormatFlagsNoClip;
  string_format.SetFormatFlags(flags);
  string_format.SetAlignment(alignment(format, DT_CENTER, DT_RIGHT));
  string_format.SetLineAlignment(alignment(format, DT_VCENTER, DT_BOTTOM));
}

}  // namespace

bool CGdiDC::DrawImage(HDC dc, Gdiplus::Image* image, const CRect& rect) const {
  return DrawImage(dc, image, rect, 0);
}

bool CGdiDC::DrawImage(HDC dc, Gdiplus::Image* image, const CRect& rect, int angle) const {
  if (dc == nullptr || image == nullptr || rect.IsRectEmpty()) return false;
  Gdiplus::Graphics graphics(dc);
  prepare_for_images(graphics);
  if (angle % 360 != 0) {
    rotate_about(graphics, static_cast<REAL>(rect.left) + static_cast<REAL>(rect.Width()) / 2,
                 static_cast<REAL>(rect.top) + static_cast<REAL>(rect.Height()) / 2, angle);
  }
  return graphics.DrawImage(image, plus_rect(rect)) == Gdiplus::Ok;
}

bool CGdiDC::DrawTextW(HDC dc, const wchar_t* text, const LOGFONTW* font, const CRect& rect,
                       Gdiplus::ARGB color, UINT format) const {
  if (dc == nullptr || text == nullptr || font == nullptr || rect.IsRectEmpty()) return false;
  Gdiplus::Graphics graphics(dc);
  graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
  const Gdiplus::Font drawing_font(dc, font);
  const Gdiplus::SolidBrush brush{Gdiplus::Color(color)};
  Gdiplus::StringFormat string_format;
  set_format(string_format, format);
  const Gdiplus::RectF layout(static_cast<REAL>(rect.left), static_cast<REAL>(rect.top),
                              static_cast<REAL>(rect.Width()), static_cast<REAL>(rect.Height()));
  const std::wstring drawn = format & DT_SINGLELINE ? without_line_breaks(text) : text;
  return graphics.DrawString(drawn.c_str(), static_cast<INT>(drawn.size()), &drawing_font, layout,
                             &string_format, &brush) == Gdiplus::Ok;
}

bool CGdiDC::Paste(HWND layered, HDC source, int opacity) const {
  BITMAP bitmap{};
  if (!GetObjectW(GetCurrentObject(source, OBJ_BITMAP), sizeof(bitmap), &bitmap)) return false;
  SIZE size{bitmap.bmWidth, bitmap.bmHeight};
  POINT origin{0, 0};
  BLENDFUNCTION blend{};
  blend.BlendOp = AC_SRC_OVER;
  blend.SourceConstantAlpha = static_cast<BYTE>(std::clamp(opacity, 0, 255));
  blend.AlphaFormat = AC_SRC_ALPHA;
  return UpdateLayeredWindow(layered, nullptr, nullptr, &size, source, &origin, 0, &blend,
                             ULW_ALPHA) != 0;
}

}  // namespace corvane
