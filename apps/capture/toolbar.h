#pragma once
// The program's toolbar, with its buttons, captions and background from the skin. The parent gets
// its WM_LAYER_BTN_CLICK.
#include <vector>

#include "corvane/corvane.h"

namespace capture {

// The control ids in list 100 of the skin.
enum class ToolbarButton { crop = 1, text = 2, open = 3, previous = 4, next = 5, quit = 6 };

class CToolbar {
 public:
  bool Open(corvane::CWnd* parent);
  // At the top of the parent's client area; the last button goes to the right edge. Where there is
  // too little room for all, they share it.
  void Place(int width);
  int height() const { return height_; }  // pixels
  void Show(bool shown) { layer_.ShowWindow(shown ? SW_SHOW : SW_HIDE); }
  corvane::CRect ButtonOnScreen(ToolbarButton button) const;
  // The buttons' windows from left to right.
  std::vector<HWND> Buttons() const;

 private:
  std::vector<corvane::CRect> natural_;  // the buttons' places in the skin
  corvane::CXmlListMgr skin_;  // this and the background outlive the layer, which borrows them
  corvane::CGdiImage background_;
  int height_ = 0;
  corvane::CWindowLayer layer_;
};

}  // namespace capture
