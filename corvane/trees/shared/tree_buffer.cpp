#include "corvane/trees/shared/tree_buffer.h"

#include "corvane/platform/framework/window_watch.h"

namespace corvane {
namespace {

constexpr COLORREF kBackground = RGB(255, 255, 255);

CRect client_of(const CWnd& window) {
  CRect client;
  window.GetClientRect(client);
  return client;
}

}  // namespace

void TreeBuffer::fit(const CWnd& tree, CDC* like) {
  const CRect client = client_of(tree);
  if (buffer_.HasSizeOf(client)) return;
  buffer_.CreateBufferDC(like != nullptr ? like->GetSafeHdc() : nullptr, client);
  buffer_.SetBackColor(client, kBackground);
}

void TreeBuffer::draw_now(CWnd& tree, CDC& target, const Draw& draw) {
  if (!exists()) return;
  fit(tree, &target);  // the size may have changed without anything being erased
  const CRect client = client_of(tree);
  buffer_.SetBackColor(client, kBackground);
  const WindowWatch watch(tree);
  draw(buffer_, client);
  if (!watch.object_gone() && buffer_.HasSizeOf(client)) buffer_.Paste(target, client, SRCCOPY);
}

}  // namespace corvane
