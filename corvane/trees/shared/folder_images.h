#pragma once
// What the rows of a folder tree are drawn with: the skin's images of a folder and of the glyph
// before it, and the frame around the selected row.
#include "corvane/platform/framework/rect.h"
#include "corvane/platform/images/gdi_image.h"

namespace corvane {

class CXmlListMgr;

class FolderImages {
 public:
  // From controls 1 and 2 of kFolderTreeList; images whose control is missing stay as they are.
  void load(const CXmlListMgr& skin);
  void release();

  // Null: there is no such image. Each belongs to this object and changes with it.
  Gdiplus::Image* glyph(bool expanded) const;
  Gdiplus::Image* folder(bool selected) const;

 private:
  CGdiImage collapsed_glyph_;
  CGdiImage expanded_glyph_;
  CGdiImage folder_;
  CGdiImage selected_folder_;
};

// Along the inner edges of `row`, in the context's coordinates.
void draw_selection_frame(HDC dc, const CRect& row);

}  // namespace corvane
