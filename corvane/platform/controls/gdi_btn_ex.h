#pragma once
// A push button drawn from a skin: five images by state, a caption, a focus ring when the keyboard
// brought the focus. Clicking it, by mouse or with the space bar, sends the parent WM_COMMAND with
// MAKEWPARAM(id, BN_CLICKED) and the button's window. CUICtrlMgr creates its window.
#include <functional>
#include <utility>

#include "corvane/platform/controls/button_behavior.h"
#include "corvane/platform/controls/button_skin.h"
#include "corvane/platform/drawing/buffer_dc.h"
#include "corvane/platform/framework/wnd.h"

namespace corvane {

class CGdiBtnEx : public CWnd {
 public:
  CGdiBtnEx() = default;

  void SetSkin(const ButtonSkin& skin);
  void SetText(const CString& text);
  const CString& GetText() const { return text_; }

  // Copies the part of a picture that lies behind the button: `rect` of the context, which is the
  // button's rectangle in its parent. A null context, or no call: what the parent has painted shows
  // through; a parent with WS_CLIPCHILDREN is asked for it (WM_ERASEBKGND, WM_PRINTCLIENT).
  void SetBkGnd(HDC source, const CRect& rect);
  // Draws the button as it looks now, without what lies behind.
  void DoDraw(HDC dc, const CRect& rect) const;

  // Called after each change of the button's look, on the thread of its window: for a layer that
  // draws its buttons into a picture of its own, where they cannot paint themselves. It may end the
  // button. Nothing may throw.
  void SetLookListener(std::function<void()> listener) { look_listener_ = std::move(listener); }

  void EnableButton(int enable);
  int IsDisabled() const { return behavior_.enabled() ? 0 : 1; }
  void SetSelected(int selected);
  int GetIsSelected() const { return behavior_.selected() ? 1 : 0; }
  // Non-zero: each press on the button is also posted to the parent, as WM_LBUTTONDOWN in the
  // parent's client coordinates.
  void OpenLBtnDownMsg(int open) { press_message_ = open; }
  // A rectangle that the host keeps with the button; it moves nothing.
  void SetNormalRect(const CRect& rect) { normal_rect_ = rect; }
  CRect GetNormalRect() const { return normal_rect_; }

 protected:
  const MessageMap* GetMessageMap() const override;

  void OnDestroy();
  BOOL OnEraseBkgnd(CDC* dc);
  void OnPaint();
  void OnSize(UINT kind, int width, int height);
  void OnShowWindow(BOOL shown, UINT reason);
  void OnEnable(BOOL enabled);
  void OnMouseMove(UINT flags, CPoint point);
  void OnMouseLeave();
  void OnLButtonDown(UINT flags, CPoint point);
  void OnLButtonUp(UINT flags, CPoint point);
  void OnCaptureChanged(CWnd* new_owner);
  void OnSetFocus(CWnd* old_window);
  void OnKillFocus(CWnd* new_window);
  void OnKeyDown(UINT key, UINT repeats, UINT flags);
  void OnKeyUp(UINT key, UINT repeats, UINT flags);
  UINT OnGetDlgCode();

 private:
  template <typename Event>
  void feed(Event event);
  bool holds(CPoint point) const;
  void report_press(CPoint point) const;
  void click() const;
  bool has_background(const CRect& client) const { return background_.HasSizeOf(client); }
  bool shows_parent(const CRect& client) const;
  void look_changed();
  void repaint();
  void build_picture(const CRect& client);
  void let_parent_draw(HDC dc) const;

  ButtonBehavior behavior_;
  ButtonSkin skin_;
  CString text_;
  std::function<void()> look_listener_;
  CBufferDC background_;  // what lies behind the button, as last given
  CBufferDC picture_;     // what is painted; kept because its size seldom changes
  CRect normal_rect_;
  int press_message_ = 0;
  bool awaits_leave_ = false;
};

}  // namespace corvane
