#include "corvane/trees/owner_drawn/tree_row_painter.h"

#include <algorithm>
#include <cwchar>

#include "corvane/platform/geometry.h"

namespace corvane {
namespace {

constexpr int kIndentation = 15;  // pixels for each level
constexpr int kMaxIndentedLevel = 6;
constexpr int kCellWidth = 30;  // of the glyph and of the folder
constexpr Gdiplus::ARGB kTextColor = 0xFF000000;
constexpr UINT kTextFormat = DT_SINGLELINE | DT_VCENTER;

LOGFONTW row_font() {
  LOGFONTW font{};
  font.lfHeight = 14;
  font.lfWeight = FW_NORMAL;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfQuality = CLEARTYPE_NATURAL_QUALITY;
  std::wcscpy(font.lfFaceName, L"黑体");
  return font;
}

CRect clip_of(HDC dc) {
  CRect clip;
  ::GetClipBox(dc, clip);
  return clip;
}

}  // namespace

void TreeRowPainter::init() {
  drawing_.Init();
  font_ = row_font();
}

void TreeRowPainter::draw_root(HDC dc, const TreeModel& model, int position) const {
  if (row_in_client(model.root(), position).bottom <= clip_of(dc).top) return;
  draw_row(dc, model, model.root(), position);
}

void TreeRowPainter::draw_below(HDC dc, const TreeModel& model, const TreeLayout& layout,
                                _NODE& node, int position) const {
  const CRect clip = clip_of(dc);
  const int top = clamp_coordinate(std::int64_t{clip.top} + position);
  const int bottom = clamp_coordinate(std::int64_t{clip.bottom} + position);
  for (const _NODE* below : layout.rows_below(model, node, top, bottom)) {
    draw_row(dc, model, *below, position);
  }
}

void TreeRowPainter::draw_row(HDC dc, const TreeModel& model, const _NODE& node,
                              int position) const {
  const CRect row = row_in_client(node, position);
  const bool highlighted = model.is_path_of(model.highlight_path(), node);
  CRect cell = row;
  cell.left += std::min(node.level(), kMaxIndentedLevel) * kIndentation;
  cell.right = cell.left + kCellWidth;
  if (!node.children().empty()) drawing_.DrawImage(dc, images_.glyph(node.expanded()), cell);
  cell.OffsetRect(kCellWidth, 0);
  drawing_.DrawImage(dc, images_.folder(highlighted), cell);
  if (highlighted) draw_selection_frame(dc, row);
  const CRect text(cell.right, row.top, row.right, row.bottom);
  drawing_.DrawTextW(dc, node.name(), &font_, text, kTextColor, kTextFormat);
}

}  // namespace corvane
