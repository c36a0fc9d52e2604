#pragma once
// A box over the picture: title, close button, and a content that scrolls with the wheel. Escape
// and the button close it.
#include "apps/capture/look.h"
#include "corvane/platform/controls/gdi_btn_ex.h"
#include "corvane/platform/framework/framework.h"
#include "corvane/skin/xml_list_mgr.h"

namespace capture {

class CPanel : public corvane::CWnd {
 public:
  explicit CPanel(const CLook& look) : look_(look) {}  // which outlives it
  // Creates the hidden window; `owner` owns it.
  bool Open(corvane::CWnd* owner, const corvane::CString& title);
  void SetTitle(const corvane::CString& title);
  // Shows it in the middle of the area (screen coordinates), at most `size` large.
  void ShowIn(const RECT& screen_area, SIZE size);
  void Close();

 protected:
  const corvane::MessageMap* GetMessageMap() const override;
  BOOL OnCommand(WPARAM wparam, LPARAM lparam) override;
  BOOL PreTranslateMessage(MSG* message) override;

  virtual void DrawContent(HDC dc, const RECT& content) = 0;
  // The height that the whole content needs at this width, pixels.
  virtual int ContentHeight(int width) = 0;

  RECT ContentRect() const;  // client coordinates
  int scroll() const { return scroll_; }
  void ScrollTo(int position);  // pixels, clamped

  const CLook& look() const { return look_; }

  int OnCreate(LPCREATESTRUCT creation);
  BOOL OnEraseBkgnd(corvane::CDC* dc);
  void OnPaint();
  void OnSize(UINT kind, int width, int height);
  BOOL OnMouseWheel(UINT flags, short distance, corvane::CPoint point);

 private:
  void draw_frame(HDC dc);
  void draw_scroll_mark(HDC dc, const RECT& content);

  int title_height() const { return static_cast<int>(look_.size(Measure::box_title).cy); }

  const CLook& look_;
  corvane::CXmlListMgr skin_;
  corvane::CGdiBtnEx close_;
  corvane::CRect close_rect_;
  corvane::CBufferDC buffer_;
  corvane::CString title_;
  int scroll_ = 0;
};

}  // namespace capture
