#include "corvane/frame/buffered_background.h"

#include "corvane/platform/framework/paint_dc.h"
#include "corvane/platform/framework/window_watch.h"

namespace corvane {

bool BufferedBackground::rebuild(CWnd& layer, CDC* like, COLORREF color) {
  CRect client;
  layer.GetClientRect(client);
  if (client.Size() == rect().Size()) return false;
  buffer_.Release();
  buffer_.CreateBufferDC(like != nullptr ? like->GetSafeHdc() : nullptr, client);
  buffer_.SetBackColor(client, color);
  layer.Invalidate(FALSE);
  return true;
}

void BufferedBackground::show(CWnd& layer) {
  const WindowWatch watch(layer);
  const CPaintDC paint(&layer);
  if (watch.object_gone() || dc() == nullptr) return;
  CRect client;
  layer.GetClientRect(client);
  buffer_.Paste(paint, client, SRCCOPY);
}

}  // namespace corvane
