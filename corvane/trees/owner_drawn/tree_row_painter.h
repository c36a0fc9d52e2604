#pragma once
// Draws the rows of the owner-drawn tree: indentation, glyph, folder, name, and the frame around
// the highlighted one. The context's coordinates are the client area's, which shows the content
// from `position` on; what lies outside the context's clip is left out.
#include "corvane/platform/drawing/gdi_dc.h"
#include "corvane/trees/owner_drawn/tree_layout.h"
#include "corvane/trees/shared/folder_images.h"

namespace corvane {

class TreeRowPainter {
 public:
  explicit TreeRowPainter(const FolderImages& images) : images_(images) {}

  void init();  // once the window exists

  void draw_root(HDC dc, const TreeModel& model, int position) const;
  // The visible rows below a node.
  void draw_below(HDC dc, const TreeModel& model, const TreeLayout& layout, _NODE& node,
                  int position) const;

 private:
  void draw_row(HDC dc, const TreeModel& model, const _NODE& node, int position) const;

  const FolderImages& images_;
  CGdiDC drawing_;
  LOGFONTW font_{};
};

}  // namespace corvane
