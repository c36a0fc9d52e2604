#pragma once
// Where the pictures of a strip stand: one row of equal cells that scrolls sideways. Client
// coordinates and pixels; the cells' size follows from the strip's height.
#include "corvane/platform/platform.h"

namespace capture {

// Cells from `first` up to, but not including, `last`.
struct CellRange {
  int first = 0;
  int last = 0;
  bool operator==(const CellRange&) const = default;
};

class CStripLayout {
 public:
  void SetArea(SIZE area);  // of the strip's window
  void SetCount(int count);
  int count() const { return count_; }

  // How far the row is moved to the left; always between 0 and ScrollLimit().
  int scroll() const { return scroll_; }
  void ScrollTo(int position);
  int ScrollLimit() const;
  void Show(int cell);  // scrolls as little as needed to see the whole cell

  SIZE PictureBox() const;  // the largest picture that a cell holds
  int CellWidth() const;    // from one cell's left edge to the next one's
  RECT Cell(int cell) const;
  RECT Picture(int cell) const;   // the part of the cell that holds the picture
  RECT Name(int cell) const;      // and the line below it
  CellRange Visible() const;      // cells that are seen at least in part
  int CellAt(POINT point) const;  // -1: none; the gaps belong to no cell

  // The bar that shows which part of the row is seen; empty when all of it is.
  RECT ScrollTrack() const;
  RECT ScrollMark() const;
  // The scroll position that brings the middle of the mark under x.
  int ScrollForMarkAt(int x) const;

 private:
  int row_width() const;

  SIZE area_{};
  int count_ = 0;
  int scroll_ = 0;
};

}  // namespace capture
