#include "corvane/trees/owner_drawn/tree_row_painter.h"

#include <algorithm>
#include <cwchar>

namespace corvane {
namespace {

constexpr int indentation = 15;  // pixels for each level
constexpr int most_indented_level = 6;
constexpr int cell_width = 30;  // of the glyph and of the folder
constexpr Gdiplus::ARGB text_color = 0xFF000000;
constexpr UINT text_format = DT_SINGLELINE | DT_VCENTER;

LOGFONTW row_font() {
  LOGFONTW font{};
  font.lfHeight = 14;
  font.lfWeight = FW_NORMAL;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfQuality = CLEARTYPE_NATURAL_QUALITY;
  std::wcscpy(font.lfFaceName, L"黑体");
  return font;
}

}  // namespace

void TreeRowPainter::Init() {
  drawing_.Init();
  font_ = row_font();
}

void TreeRowPainter::Draw(HDC dc, const _NODE& node, const CRect& row, bool highlighted) const {
  CRect cell = row;
  cell.left += std::min(node.level(), most_indented_level) * indentation;
  cell.right = cell.left + cell_width;
  if (!node.children().empty()) drawing_.DrawImage(dc, images_.glyph(node.expanded()), cell);
  cell.OffsetRect(cell_width, 0);
  drawing_.DrawImage(dc, images_.folder(highlighted), cell);
  if (highlighted) draw_selection_frame(dc, row);
  const CRect text(cell.right, row.top, row.right, row.bottom);
  drawing_.DrawTextW(dc, node.name(), &font_, text, text_color, text_format);
}

}  // namespace corvane
