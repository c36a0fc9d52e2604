#include "corvane/platform/controls/ui_ctrl_mgr.h"

#include "corvane/platform/controls/gdi_btn_ex.h"
#include "corvane/platform/controls/gdi_combo_box.h"
#include "corvane/platform/controls/gdi_edit_ex.h"
#include "corvane/platform/controls/gdi_slider.h"
#include "corvane/platform/controls/hdc_btn.h"
#include "corvane/platform/controls/image_file.h"
#include "corvane/platform/controls/list_tab.h"
#include "corvane/platform/controls/skinned_wnd.h"

namespace corvane {
namespace {

// The last step of a loader: creating a window tells the parent, whose handlers may release the
// records.
int place_child(CWnd& window, const CString& text, const CRect& rect, CWnd* parent, UINT id) {
  if (window.GetSafeHwnd()) {
    window.MoveWindow(rect);
    return 1;
  }
  return window.Create(nullptr, text, WS_CHILD | WS_VISIBLE | WS_TABSTOP, rect, parent, id) ? 1 : 0;
}

CRect rect_of(const _MYCONTROL* control) { return control ? CRect(control->rect) : CRect(); }

CString text_of(const _MYLANGUAGE* caption) { return caption ? caption->text : CString(); }

int load_skinned(CSkinnedWnd& window, CRect& rect, CWnd* parent, UINT id, const _MYCONTROL* control,
                 const _MYLANGUAGE* caption) {
  window.SetSkin(control, caption);
  rect = rect_of(control);
  return place_child(window, text_of(caption), rect, parent, id);
}

}  // namespace

int CUICtrlMgr::LoadGdiImage(CGdiImage& image, const _MYCONTROL* control) {
  return load_skin_image(image, control ? control->image : CString());
}

int CUICtrlMgr::LoadDownGdiImage(CGdiImage& image, const _MYCONTROL* control) {
  return load_skin_image(image, control ? control->pressed_image : CString());
}

int CUICtrlMgr::LoadSelectImage(CGdiImage& image, const _MYCONTROL* control) {
  return load_skin_image(image, control ? control->selected_image : CString());
}

int CUICtrlMgr::LoadGdiBtn(CGdiBtnEx& button, CRect& rect, CWnd* parent, UINT id,
                           const _MYCONTROL* control, const _MYLANGUAGE* caption,
                           const _MYFONT* font) {
  button.SetSkin(ButtonSkin(control, font));
  button.SetText(text_of(caption));
  rect = rect_of(control);
  return place_child(button, text_of(caption), rect, parent, id);
}

int CUICtrlMgr::LoadHdcBtn(CHdcBtn& button, CRect& rect, CWnd* parent, UINT id,
                           const _MYCONTROL* control, const _MYLANGUAGE* caption, const _MYFONT*) {
  return load_skinned(button, rect, parent, id, control, caption);
}

int CUICtrlMgr::LoadGdiSlider(CGdiSlider& slider, CRect& rect, CWnd* parent, UINT id,
                              const _MYCONTROL* control, const _MYLANGUAGE* caption,
                              const _MYFONT*) {
  return load_skinned(slider, rect, parent, id, control, caption);
}

int CUICtrlMgr::LoadGdiComboBox(CGdiComboBox& box, CRect& rect, CWnd* parent, UINT id,
                                const _MYCONTROL* control, const _MYLANGUAGE* caption,
                                const _MYFONT*) {
  return load_skinned(box, rect, parent, id, control, caption);
}

int CUICtrlMgr::LoadGdiEditEx(CGdiEditEx& edit, CRect& rect, CWnd* parent, UINT id,
                              const _MYCONTROL* control, const _MYLANGUAGE* caption,
                              const _MYFONT*) {
  return load_skinned(edit, rect, parent, id, control, caption);
}

int CUICtrlMgr::LoadListTab(CListTab& strip, CRect& rect, CWnd* parent, const _MYCONTROL* control) {
  const UINT id = control ? static_cast<UINT>(control->id) : 0;
  return load_skinned(strip, rect, parent, id, control, nullptr);
}

int CUICtrlMgr::LoadTabBtn(CListTab& strip, int id, const _MYCONTROL* control,
                           const _MYLANGUAGE* caption, const _MYFONT* font) {
  if (!strip.GetSafeHwnd()) return 0;
  CRect rect;
  return LoadGdiBtn(strip.AddBtn(), rect, &strip, static_cast<UINT>(id), control, caption, font);
}

}  // namespace corvane
