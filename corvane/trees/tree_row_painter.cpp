#include "corvane/trees/tree_row_painter.h"

#include <algorithm>
#include <cwchar>

#include "corvane/platform/controls/ui_ctrl_mgr.h"
#include "corvane/skin/xml_list_mgr.h"

namespace corvane {
namespace {

constexpr int indentation = 15;  // pixels for each level
constexpr int most_indented_level = 6;
constexpr int cell_width = 30;  // of the glyph and of the folder
constexpr int glyph_control = 1;
constexpr int folder_control = 2;
constexpr Gdiplus::ARGB text_color = 0xFF000000;
constexpr UINT text_format = DT_SINGLELINE | DT_VCENTER;
constexpr int frame_width = 2;
constexpr COLORREF frame_color = RGB(106, 144, 226);

LOGFONTW row_font() {
  LOGFONTW font{};
  font.lfHeight = 14;
  font.lfWeight = FW_NORMAL;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfQuality = CLEARTYPE_NATURAL_QUALITY;
  std::wcscpy(font.lfFaceName, L"黑体");
  return font;
}

void load_pair(CGdiImage& normal, CGdiImage& selected, const _MYCONTROL* control) {
  if (!control) return;
  CUICtrlMgr loader;
  loader.LoadGdiImage(normal, control);
  loader.LoadSelectImage(selected, control);
}

}  // namespace

void TreeRowPainter::Init() {
  drawing_.Init();
  font_ = row_font();
}

void TreeRowPainter::LoadImages(const CXmlListMgr& skin) {
  load_pair(collapsed_glyph_, expanded_glyph_, skin.GetCtrl(glyph_control));
  load_pair(folder_, highlighted_folder_, skin.GetCtrl(folder_control));
}

void TreeRowPainter::DeleteImages() {
  for (CGdiImage* image : {&collapsed_glyph_, &expanded_glyph_, &folder_, &highlighted_folder_}) {
    image->DelImage();
  }
}

void TreeRowPainter::Draw(HDC dc, const _NODE& node, const CRect& row, bool highlighted) const {
  CRect cell = row;
  cell.left += std::min(node.level(), most_indented_level) * indentation;
  cell.right = cell.left + cell_width;
  if (!node.children().empty()) {
    const CGdiImage& glyph = node.expanded() ? expanded_glyph_ : collapsed_glyph_;
    drawing_.DrawImage(dc, glyph.GetImage(), cell);
  }
  cell.OffsetRect(cell_width, 0);
  const CGdiImage& folder = highlighted ? highlighted_folder_ : folder_;
  drawing_.DrawImage(dc, folder.GetImage(), cell);
  if (highlighted) DrawFrame(dc, row);
  const CRect text(cell.right, row.top, row.right, row.bottom);
  drawing_.DrawTextW(dc, node.name(), &font_, text, text_color, text_format);
}

void TreeRowPainter::DrawFrame(HDC dc, const CRect& row) const {
  const HPEN pen = ::CreatePen(PS_SOLID, frame_width, frame_color);
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
