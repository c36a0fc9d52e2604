#pragma once
// A window with a background image and any number of skinned buttons that the host chooses. A click
// posts WM_LAYER_BTN_CLICK to the parent window; a press beside the buttons drags the parent.
//
// Order of calls: SetXmlListMgr, AddBtn, SetBgImage; create the window; then ShowWindow, SetBtnRect
// and GetBtnRect at will.
#include <memory>
#include <vector>

#include "corvane/frame/buffered_background.h"
#include "corvane/frame/library_window.h"
#include "corvane/frame/skinned_button.h"
#include "corvane/platform/drawing/gdi_dc.h"
#include "corvane/platform/framework/rect.h"
#include "corvane/skin/xml_list_mgr.h"

namespace corvane {

class CWindowLayer : public LibraryWindow<CWnd> {
 public:
  CWindowLayer();

  static const CRuntimeClass classCWindowLayer;
  BOOL OnCommand(WPARAM wparam, LPARAM lparam) override;

  // The host's skin lists; borrowed, must outlive the window's creation. Null: no buttons.
  void SetXmlListMgr(CXmlListMgr* skin);
  // Adds a button by its control id in the skin list; ids may repeat, then the first one counts.
  // Returns the number of buttons, or -1 when there is no memory. A button added after the window
  // was created never gets a window.
  int AddBtn(int id);
  void DelAllBtn();  // destroys the buttons with their windows
  // Client coordinates; (0, 0, 0, 0) for an unknown id.
  CRect GetBtnRect(int id) const;
  void SetBtnRect(int id, CRect rect);
  // Drawn over the whole client area, from the next change of size on; the rectangle has no effect.
  // The image is borrowed and must outlive the layer's window.
  void SetBgImage(Gdiplus::Image* image, CRect rect);
  // Returns whether the window was visible before.
  int ShowWindow(int command);
  int IsShowWindow() const;  // 1 when the last command was SW_SHOW, else 0

  int OnCreate(LPCREATESTRUCT creation);
  BOOL OnEraseBkgnd(CDC* dc);
  void OnPaint();
  void OnLButtonDown(UINT flags, CPoint point);
  void OnDestroy();

 private:
  struct Button : SkinnedButton {
    int id = 0;
  };
  // A handler that is busy with a button keeps it through DelAllBtn.
  using ButtonPointer = std::shared_ptr<Button>;

  const WindowDescription& description() const override;
  ButtonPointer find(int id) const;

  CGdiDC drawing_;
  BufferedBackground background_;
  Gdiplus::Image* image_ = nullptr;
  std::vector<ButtonPointer> buttons_;
  CXmlListMgr* skin_ = nullptr;
  int show_state_ = 0;
  WindowEnd end_{*this};  // last
};

}  // namespace corvane
