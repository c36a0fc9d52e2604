#include "corvane/platform/drawing/buffer_dc.h"

namespace corvane {
namespace {

HBITMAP create_bitmap(HDC dc, int width, int height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* pixels = nullptr;
  return CreateDIBSection(dc, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
}

}  // namespace

CBufferDC::~CBufferDC() { Release(); }

CBufferDC::CBufferDC(const CBufferDC& other) { *this = other; }

CBufferDC& CBufferDC::operator=(const CBufferDC& other) {
  if (this == &other) return *this;
  if (other.dc_ == nullptr) {
    Release();
  } else if (HasSizeOf(other.rect_) || CreateBufferDC(other.dc_, other.rect_)) {
    rect_ = other.rect_;
    BitBlt(dc_, 0, 0, rect_.Width(), rect_.Height(), other.dc_, 0, 0, SRCCOPY);
  }
  return *this;
}

bool CBufferDC::CreateBufferDC(HDC compatible, const RECT& rect) {
  Release();
  const CRect wanted(rect);
  if (wanted.IsRectEmpty()) return false;
  dc_ = CreateCompatibleDC(compatible);
  if (dc_ == nullptr) return false;
  bitmap_ = create_bitmap(dc_, wanted.Width(), wanted.Height());
  if (bitmap_ == nullptr) {
    Release();
    return false;
  }
  first_bitmap_ = SelectObject(dc_, bitmap_);
  rect_ = wanted;
  return true;
}

void CBufferDC::Release() {
  if (first_bitmap_ != nullptr) SelectObject(dc_, first_bitmap_);
  if (dc_ != nullptr) DeleteDC(dc_);
  if (bitmap_ != nullptr) DeleteObject(bitmap_);
  dc_ = nullptr;
  bitmap_ = nullptr;
  first_bitmap_ = nullptr;
  rect_.SetRectEmpty();
}

bool CBufferDC::HasSizeOf(const RECT& rect) const {
  return dc_ != nullptr && rect_.Size() == CRect(rect).Size();
}

void CBufferDC::SetBackColor(const RECT& rect, COLORREF color) {
  if (dc_ == nullptr) return;
  const HBRUSH brush = CreateSolidBrush(color);
  FillRect(dc_, &rect, brush);
  DeleteObject(brush);
}

bool CBufferDC::Paste(HDC target, const RECT& rect, DWORD operation) const {
  const CRect place(rect);
  if (dc_ == nullptr || target == nullptr || place.IsRectEmpty()) return false;
  if (HasSizeOf(rect)) {
    return BitBlt(target, place.left, place.top, place.Width(), place.Height(), dc_, 0, 0,
                  operation) != 0;
  }
  const int former_mode = SetStretchBltMode(target, COLORONCOLOR);
  const BOOL pasted = StretchBlt(target, place.left, place.top, place.Width(), place.Height(), dc_,
                                 0, 0, rect_.Width(), rect_.Height(), operation);
  SetStretchBltMode(target, former_mode);
  return pasted != 0;
}

}  // namespace corvane
