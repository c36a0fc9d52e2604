#pragma once
// An off-screen picture with its device context: 32 bits a pixel, premultiplied, black and
// transparent at first. Its own coordinates start at (0, 0).
#include "corvane/platform/framework/rect.h"
#include "corvane/platform/platform.h"

namespace corvane {

class CBufferDC {
 public:
  CBufferDC() = default;
  ~CBufferDC();
  CBufferDC(const CBufferDC& other);
  CBufferDC& operator=(const CBufferDC& other);  // becomes a picture of its own, the same contents

  // Replaces the picture by a new one of the rectangle's size; `compatible` may be null. False, and
  // there is no picture, when the rectangle is empty or memory is short.
  bool CreateBufferDC(HDC compatible, const RECT& rect);
  void Release();  // harmless when there is none

  HDC GetDC() const { return dc_; }  // null when there is none; owned by the buffer
  operator HDC() const { return dc_; }
  const CRect& GetRect() const { return rect_; }  // as it was created; (0, 0, 0, 0) after Release
  // Whether the buffer exists and has the rectangle's width and height.
  bool HasSizeOf(const RECT& rect) const;

  // Fills the rectangle of the buffer; the opacity becomes 0, so that on a layered window black is
  // clear.
  void SetBackColor(const RECT& rect, COLORREF color);
  // Copies the whole buffer over the rectangle (the target's logical coordinates), stretched when
  // the sizes differ. False when there is no picture or no target, or the rectangle is empty.
  bool Paste(HDC target, const RECT& rect, DWORD operation = SRCCOPY) const;

 private:
  HDC dc_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ first_bitmap_ = nullptr;  // selected again before the context is deleted
  CRect rect_;
};

}  // namespace corvane
