#pragma once
// The overlay on which the user marks a rectangle of the picture below: everything is darkened
// except the rectangle, which is clear, outlined in green and has eight handles. Dragging draws,
// moves and resizes it; a bar of buttons follows it. Usually part of CCutBgLayer, which feeds it
// the mouse; a host may use it alone as a layered pop-up over its picture.
#include "corvane/frame/library_window.h"
#include "corvane/layers/crop/crop_frame.h"
#include "corvane/layers/crop/cut_btn_layer.h"
#include "corvane/platform/drawing/buffer_dc.h"
#include "corvane/platform/framework/rect.h"

namespace corvane {

class CCutRectLayer : public LibraryWindow<CWnd> {
 public:
  CCutRectLayer();

  static const CRuntimeClass classCCutRectLayer;

  // Empties the rectangle, hides the bar, and shows or hides this window. Hiding it in the middle
  // of a drag ends the drag. Returns whether it was visible before.
  int ShowWindow(int command);
  // As it stands, in client coordinates. It is empty when nothing was drawn, and inverted when an
  // edge was dragged past its opposite.
  CRect GetCutRect() const;
  // Frames that rectangle, as if the user had drawn it: for a host that scales its picture anew in
  // the middle of a crop. An empty one frames nothing. The bar comes and goes with it.
  void SetCutRect(CRect rectangle);
  // Non-zero: the bar is used. Nothing is shown or hidden at once; a bar that is up and no longer
  // used goes at the next step of a drag.
  void ShowBtn(int use_bar);
  // Non-zero: text recognition, with a hint while the rectangle is empty and its own row of
  // buttons. The row changes only while the bar's window exists; nothing is repainted at once.
  void SetOCRMode(int text_recognition);
  // The window that gets WM_CUT_CMD; borrowed.
  void SetParentHwnd(HWND window);
  // The window of the bar of buttons, whose window ids are the buttons' numbers; null while there
  // is none.
  HWND GetBarHwnd() const { return button_layer_.GetSafeHwnd(); }

  // The crop_hit code at a point in client coordinates.
  int DragFrame(CPoint point) const;
  // Draws outline and handles on a device context that has this window's client coordinates.
  void DrawGreenFrame(HDC dc) const;

  int OnCreate(LPCREATESTRUCT creation);
  using CWnd::OnDestroy;
  void OnSize(UINT kind, int width, int height);
  void OnMove(int x, int y);
  void OnPaint();
  BOOL OnEraseBkgnd(CDC* dc);
  void OnLButtonDown(UINT flags, CPoint point);
  void OnLButtonUp(UINT flags, CPoint point);
  void OnMouseMove(UINT flags, CPoint point);
  void OnCaptureChanged(CWnd* new_owner);

 private:
  const WindowDescription& description() const override;
  void create_fill_buffers();
  bool bar_is_shown() const;
  void hide_bar();
  void place_bar();
  void update_shown_bar();
  bool end_drag();
  void show_new_frame(int bar_command);
  void draw_hint(HDC dc, CRect client) const;

  CBufferDC dark_buffer_;
  CBufferDC clear_buffer_;
  CropFrame frame_;
  bool show_buttons_ = false;
  CCutBtnLayer button_layer_;
  bool text_recognition_ = false;
  WindowEnd end_{*this};  // last
};

}  // namespace corvane
