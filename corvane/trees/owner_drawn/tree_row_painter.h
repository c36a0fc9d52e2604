#pragma once
// Draws one row of the owner-drawn tree: indentation, glyph, folder, name, and the frame around the
// selected one.
#include "corvane/platform/drawing/gdi_dc.h"
#include "corvane/trees/model/tree_node.h"
#include "corvane/trees/shared/folder_images.h"

namespace corvane {

class TreeRowPainter {
 public:
  explicit TreeRowPainter(const FolderImages& images) : images_(images) {}

  void Init();  // once the window exists

  // `row` is where the row lies in the context's coordinates.
  void Draw(HDC dc, const _NODE& node, const CRect& row, bool highlighted) const;

 private:
  const FolderImages& images_;
  CGdiDC drawing_;
  LOGFONTW font_{};
};

}  // namespace corvane
