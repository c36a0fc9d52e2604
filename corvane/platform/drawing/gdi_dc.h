#pragma once
// Draws pictures and text onto device contexts, and puts a picture on a layered window. Unlike the
// platform's solid drawing it keeps the target's opacity right, so what it draws into a buffer
// stays visible when the buffer is put on a layered window.
#include "corvane/platform/framework/rect.h"
#include "corvane/platform/platform.h"

namespace corvane {

class CGdiDC {
 public:
  // Prepares for drawing; once per window, before the first image.
  void Init() {}

  // Scales the image into the rectangle (logical coordinates). False, and nothing is drawn, when
  // the image is null, the rectangle empty or the context not valid.
  bool DrawImage(HDC dc, Gdiplus::Image* image, const CRect& rect) const;
  // The same, turned clockwise about the rectangle's centre; degrees.
  bool DrawImage(HDC dc, Gdiplus::Image* image, const CRect& rect, int angle) const;

  // `color` is 0xAARRGGBB. Of the DT_ flags these count: DT_CENTER, DT_RIGHT, DT_VCENTER and
  // DT_BOTTOM (each also for several lines), DT_SINGLELINE, DT_NOCLIP. '&' is drawn as it stands.
  // Text is cut at the rectangle. False when nothing was drawn: null text or font, no context.
  bool DrawTextW(HDC dc, const wchar_t* text, const LOGFONTW* font, const CRect& rect,
                 Gdiplus::ARGB color, UINT format) const;

  // Puts the whole bitmap of a memory context on the layered window: transparent where it is
  // (its pixels are premultiplied), with that opacity (0 to 255) on top. The window keeps its
  // position and takes the bitmap's size. False when one of them is not what it has to be.
  bool Paste(HWND layered, HDC source, int opacity) const;
};

}  // namespace corvane
