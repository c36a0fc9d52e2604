#pragma once
// The background of a layer with buttons: built off screen when the layer's size has changed, shown
// by one copy, and lent to the buttons as theirs.
#include "corvane/platform/drawing/buffer_dc.h"
#include "corvane/platform/framework/dc.h"
#include "corvane/platform/framework/wnd.h"

namespace corvane {

class BufferedBackground {
 public:
  // Called when the layer is to erase its background. True: the layer's client size has changed,
  // and the background is new and of one colour, ready for images; all of it will be painted, also
  // where the window's class keeps what was there. `like` may be null.
  bool rebuild(CWnd& layer, CDC* like, COLORREF color);
  // The whole of a WM_PAINT handler.
  void show(CWnd& layer);

  void release() { buffer_.Release(); }

  HDC dc() const { return buffer_.GetDC(); }  // null before the first rebuild
  CRect rect() const { return buffer_.GetRect(); }

 private:
  CBufferDC buffer_;
};

}  // namespace corvane
