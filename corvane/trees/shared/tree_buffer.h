#pragma once
// The picture into which a folder tree draws all that it shows before it is seen.
#include <functional>

#include "corvane/platform/drawing/buffer_dc.h"
#include "corvane/platform/framework/dc.h"
#include "corvane/platform/framework/wnd.h"

namespace corvane {

class TreeBuffer {
 public:
  // Makes it anew, white, when the size of the tree's client area has changed. `like` may be null.
  void fit(const CWnd& tree, CDC* like);
  bool exists() const { return buffer_.GetDC() != nullptr; }

  // Draws the whole tree now, whether invalid or not, and shows it on `target`, a device context of
  // its client area. `draw` draws on white and may end the tree.
  using Draw = std::function<void(HDC dc, CRect client)>;
  void draw_now(CWnd& tree, CDC& target, const Draw& draw);

 private:
  CBufferDC buffer_;
};

}  // namespace corvane
