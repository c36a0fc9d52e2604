#pragma once
// The area below the toolbar: the picture, fitted to it or zoomed and moved by dragging, and a
// notice that fades by itself.
#include <optional>

#include "apps/capture/look.h"
#include "apps/capture/picture.h"
#include "apps/capture/picture_zoom.h"
#include "corvane/platform/framework/framework.h"

namespace capture {

class CPictureView : public corvane::CWnd {
 public:
  explicit CPictureView(const CLook& look) : look_(look) {}  // which outlives it
  // Borrowed until the next call; null: an empty stage.
  void SetPicture(const CPicture* picture);
  // How large it is shown; another picture fits again. Points in client coordinates.
  void Fit();
  void ZoomBy(int steps, POINT about);
  void ZoomToOwnSize();
  POINT Middle() const;
  // Where the whole picture stands, client coordinates; empty without a picture.
  RECT ShownRect() const;
  // Shows a line of text at the bottom for a few seconds.
  void ShowNotice(const corvane::CString& text);
  // The same until the next notice: something is being done.
  void ShowBusy(const corvane::CString& text);
  const corvane::CString& notice() const { return notice_; }  // empty when none is shown
  // What stands on the stage while there is no picture, and a smaller line below it.
  void SetEmptyText(const corvane::CString& text, const corvane::CString& more);

 protected:
  const corvane::MessageMap* GetMessageMap() const override;
  BOOL OnEraseBkgnd(corvane::CDC* dc);
  void OnPaint();
  void OnTimer(UINT_PTR id);
  void OnLButtonDown(UINT flags, corvane::CPoint point);
  void OnMouseMove(UINT flags, corvane::CPoint point);
  void OnLButtonUp(UINT flags, corvane::CPoint point);
  void OnCaptureChanged(corvane::CWnd* new_owner);
  BOOL OnSetCursor(corvane::CWnd* window, UINT hit_code, UINT mouse_message);

 private:
  RECT area() const;  // where a picture is fitted to
  void draw_empty_stage(HDC dc, const RECT& client) const;
  void draw_notice(HDC dc, const RECT& client) const;

  const CLook& look_;
  const CPicture* picture_ = nullptr;
  CPictureZoom zoom_;
  std::optional<POINT> grip_;  // while the picture is dragged: where the pointer was last
  corvane::CString notice_;
  corvane::CString empty_text_, more_empty_text_;
};

}  // namespace capture
