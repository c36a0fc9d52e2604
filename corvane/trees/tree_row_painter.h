#pragma once
// Draws one row of the owner-drawn tree: indentation, glyph, folder, name, and the frame around the
// selected one.
#include "corvane/platform/drawing/gdi_dc.h"
#include "corvane/platform/images/gdi_image.h"
#include "corvane/trees/tree_node.h"

namespace corvane {

class CXmlListMgr;

class TreeRowPainter {
 public:
  void Init();  // once the window exists
  // From controls 1 and 2 of the skin's list; images whose control is missing stay as they are.
  void LoadImages(const CXmlListMgr& skin);
  void DeleteImages();

  // `row` is where the row lies in the context's coordinates.
  void Draw(HDC dc, const _NODE& node, const CRect& row, bool highlighted) const;

 private:
  void DrawFrame(HDC dc, const CRect& row) const;

  CGdiDC drawing_;
  LOGFONTW font_{};
  CGdiImage collapsed_glyph_;
  CGdiImage expanded_glyph_;
  CGdiImage folder_;
  CGdiImage highlighted_folder_;
};

}  // namespace corvane
