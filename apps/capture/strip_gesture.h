#pragma once
// What pressing, dragging and releasing in a strip of pictures means: a click on a picture, moving
// the row, or moving the scroll mark.
#include "apps/capture/strip_layout.h"

namespace capture {

class CStripGesture {
 public:
  void Press(CStripLayout& layout, POINT point);
  void Move(CStripLayout& layout, POINT point);
  // The clicked cell; -1: none.
  int Release(const CStripLayout& layout, POINT point);
  void Cancel() { kind_ = Kind::none; }
  bool active() const { return kind_ != Kind::none; }
  bool moves_row() const { return kind_ == Kind::row || kind_ == Kind::mark; }

 private:
  enum class Kind { none, click, row, mark };

  Kind kind_ = Kind::none;
  POINT pressed_{};
  int pressed_scroll_ = 0;
  int pressed_cell_ = -1;
};

}  // namespace capture
