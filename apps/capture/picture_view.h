#pragma once
// The area below the toolbar: the picture fitted to it, and a notice that fades by itself.
#include "apps/capture/picture.h"
#include "corvane/platform/framework/framework.h"

namespace capture {

class CPictureView : public corvane::CWnd {
 public:
  // Borrowed until the next call; null: an empty stage.
  void SetPicture(const CPicture* picture);
  // Where the whole picture stands, client coordinates; empty without a picture.
  RECT ShownRect() const;
  // Shows a line of text at the bottom for a few seconds.
  void ShowNotice(const corvane::CString& text);
  // The same until the next notice: something is being done.
  void ShowBusy(const corvane::CString& text);
  const corvane::CString& notice() const { return notice_; }  // empty when none is shown
  // What stands on the stage while there is no picture; '\n' begins another, smaller line.
  void SetEmptyText(const corvane::CString& text);

 protected:
  const corvane::MessageMap* GetMessageMap() const override;
  BOOL OnEraseBkgnd(corvane::CDC* dc);
  void OnPaint();
  void OnTimer(UINT_PTR id);

 private:
  void draw_empty_stage(HDC dc, const RECT& client) const;
  void draw_notice(HDC dc, const RECT& client) const;

  const CPicture* picture_ = nullptr;
  corvane::CString notice_;
  corvane::CString empty_text_;
};

}  // namespace capture
