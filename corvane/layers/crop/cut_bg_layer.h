#pragma once
// The window that a host lays over its picture to run a crop. It is practically invisible but takes
// the mouse everywhere, keeps a CCutRectLayer exactly over itself and hands the mouse to it, so the
// whole area behaves as one. The host creates it as a pop-up (WS_POPUP) that its own window owns,
// hidden, over the picture in screen coordinates, and moves it when the picture moves; a mid-grey
// brush of the window's class changes what shows through least.
#include "corvane/frame/library_window.h"
#include "corvane/layers/crop/cut_rect_layer.h"
#include "corvane/platform/framework/rect.h"

namespace corvane {

class CCutBgLayer : public LibraryWindow<CWnd> {
 public:
  CCutBgLayer();

  static const CRuntimeClass classCCutBgLayer;

  // The window that gets WM_CUT_CMD when a button of the bar is clicked; borrowed.
  void SetParentHwnd(HWND window);
  // Non-zero: the bar of buttons is used.
  void ShowBtn(int use_bar);
  // Non-zero: text recognition (a hint, and its own row of buttons). Call it after creation.
  void SetOCRMode(int text_recognition);
  // Starts (SW_SHOW) or ends (SW_HIDE) a crop, each with an empty rectangle. Returns whether the
  // window was visible before.
  int ShowWindow(int command);
  // The last value given to ShowWindow; 0 before.
  int GetShowWindow() const { return shown_; }
  // The window of the bar of buttons, whose window ids are the buttons' numbers; null while the
  // crop's windows do not exist.
  HWND GetBarHwnd() const;
  // The crop rectangle in client coordinates; see CCutRectLayer::GetCutRect.
  CRect GetCutRect() const;
  // See CCutRectLayer::SetCutRect.
  void SetCutRect(CRect rectangle);

  int OnCreate(LPCREATESTRUCT creation);
  void OnSize(UINT kind, int width, int height);
  using CWnd::OnDestroy;
  void OnLButtonDown(UINT flags, CPoint point);
  void OnLButtonUp(UINT flags, CPoint point);
  void OnMouseMove(UINT flags, CPoint point);
  void OnMove(int x, int y);

 private:
  const WindowDescription& description() const override;
  void cover_with_rect_layer();

  CCutRectLayer rect_layer_;
  int shown_ = 0;
  WindowEnd end_{*this};  // last
};

}  // namespace corvane
