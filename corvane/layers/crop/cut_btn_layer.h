#pragma once
// The bar of skinned buttons under the crop rectangle: a row of four (3, 4, 1, 2) in normal use, a
// row of two (5, 6) for text recognition, one of them visible. A click posts WM_CUT_CMD with the
// button's number; what the numbers mean is the host's business. Looks and sizes come from the
// skin's list 4, controls 1 to 6.
#include <array>

#include "corvane/frame/buffered_background.h"
#include "corvane/frame/library_window.h"
#include "corvane/frame/skinned_button.h"
#include "corvane/layers/crop/button_rows.h"
#include "corvane/platform/framework/rect.h"
#include "corvane/skin/xml_list_mgr.h"

namespace corvane {

class CCutBtnLayer : public LibraryWindow<CWnd> {
 public:
  CCutBtnLayer();

  static const CRuntimeClass classCCutBtnLayer;
  BOOL OnCommand(WPARAM wparam, LPARAM lparam) override;

  // The window that gets WM_CUT_CMD; borrowed. Without one clicks post nothing.
  void SetParentHwnd(HWND window);
  void InitConfig();     // reads the skin's lists
  void LoadResources();  // creates the buttons
  void SetRect();        // lays the buttons out, keeping their sizes
  // Non-zero: the row for text recognition, else the normal row. Sizes the bar to the row and moves
  // it to the screen's upper left corner. Nothing happens without a window.
  void SetOCRMode(int text_recognition);

  int OnCreate(LPCREATESTRUCT creation);
  using CWnd::OnSize;
  void OnDestroy();
  void OnPaint();
  BOOL OnEraseBkgnd(CDC* dc);

 private:
  const WindowDescription& description() const override;
  CropButtonRects button_rects() const;
  void show_row(CropRow row);

  BufferedBackground background_;
  HWND parent_ = nullptr;
  CXmlListMgr skin_;
  std::array<SkinnedButton, 6> buttons_;  // button 1 first
  WindowEnd end_{*this};                  // last
};

}  // namespace corvane
