#include "corvane/trees/shared/folder_images.h"

#include "corvane/platform/controls/ui_ctrl_mgr.h"
#include "corvane/skin/xml_list_mgr.h"

namespace corvane {
namespace {

constexpr int kGlyphControl = 1;
constexpr int kFolderControl = 2;
constexpr int kFrameWidth = 2;
constexpr COLORREF kFrameColor = RGB(106, 144, 226);

void load_pair(CGdiImage& normal, CGdiImage& selected, const _MYCONTROL* control) {
  if (control == nullptr) return;
  CUICtrlMgr loader;
  loader.LoadGdiImage(normal, control);
  loader.LoadSelectImage(selected, control);
}

}  // namespace

void FolderImages::load(const CXmlListMgr& skin) {
  load_pair(collapsed_glyph_, expanded_glyph_, skin.GetCtrl(kGlyphControl));
  load_pair(folder_, selected_folder_, skin.GetCtrl(kFolderControl));
}

void FolderImages::release() {
  for (CGdiImage* image : {&collapsed_glyph_, &expanded_glyph_, &folder_, &selected_folder_}) {
    image->DelImage();
  }
}

Gdiplus::Image* FolderImages::glyph(bool expanded) const {
  return (expanded ? expanded_glyph_ : collapsed_glyph_).GetImage();
}

Gdiplus::Image* FolderImages::folder(bool selected) const {
  return (selected ? selected_folder_ : folder_).GetImage();
}

void draw_selection_frame(HDC dc, const CRect& row) {
  const HPEN pen = ::CreatePen(PS_SOLID, kFrameWidth, kFrameColor);
  const HGDIOBJ previous = ::SelectObject(dc, pen);
  ::MoveToEx(dc, row.left + 1, row.top + 2, nullptr);
  ::LineTo(dc, row.right - 2, row.top + 2);
  ::LineTo(dc, row.right - 2, row.bottom - 2);
  ::LineTo(dc, row.left + 2, row.bottom - 2);
  ::LineTo(dc, row.left + 2, row.top + 1);
  ::SelectObject(dc, previous);
  ::DeleteObject(pen);
}

}  // namespace corvane
