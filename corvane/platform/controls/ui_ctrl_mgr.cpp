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
int place_child(CWnd& window, const CString& text, const CRect& rect, const ControlToLoad& load) {
  if (window.GetSafeHwnd() != nullptr) {
    window.MoveWindow(rect);
    return 1;
  }
  constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
  return window.Create(nullptr, text, kStyle, rect, load.parent, load.id) ? 1 : 0;
}

CRect rect_of(const _MYCONTROL* control) {
  return control != nullptr ? CRect(control->rect) : CRect();
}

CString text_of(const _MYLANGUAGE* caption) {
  return caption != nullptr ? caption->text : CString();
}

int load_skinned(CSkinnedWnd& window, CRect& rect, const ControlToLoad& load) {
  window.SetSkin(load.skin.control, load.skin.caption);
  rect = rect_of(load.skin.control);
  return place_child(window, text_of(load.skin.caption), rect, load);
}

}  // namespace

int CUICtrlMgr::LoadGdiImage(CGdiImage& image, const _MYCONTROL* control) {
  return load_skin_image(image, control != nullptr ? control->image : CString());
}

int CUICtrlMgr::LoadDownGdiImage(CGdiImage& image, const _MYCONTROL* control) {
  return load_skin_image(image, control != nullptr ? control->pressed_image : CString());
}

int CUICtrlMgr::LoadSelectImage(CGdiImage& image, const _MYCONTROL* control) {
  return load_skin_image(image, control != nullptr ? control->selected_image : CString());
}

int CUICtrlMgr::LoadGdiBtn(CGdiBtnEx& button, CRect& rect, const ControlToLoad& load) {
  const SkinnedControl& skin = load.skin;
  button.SetSkin(ButtonSkin(skin.control, skin.font));
  button.SetText(text_of(skin.caption));
  rect = rect_of(skin.control);
  return place_child(button, text_of(skin.caption), rect, load);
}

int CUICtrlMgr::LoadHdcBtn(CHdcBtn& button, CRect& rect, const ControlToLoad& load) {
  return load_skinned(button, rect, load);
}

int CUICtrlMgr::LoadGdiSlider(CGdiSlider& slider, CRect& rect, const ControlToLoad& load) {
  return load_skinned(slider, rect, load);
}

int CUICtrlMgr::LoadGdiComboBox(CGdiComboBox& box, CRect& rect, const ControlToLoad& load) {
  return load_skinned(box, rect, load);
}

int CUICtrlMgr::LoadGdiEditEx(CGdiEditEx& edit, CRect& rect, const ControlToLoad& load) {
  return load_skinned(edit, rect, load);
}

int CUICtrlMgr::LoadListTab(CListTab& strip, CRect& rect, const ControlToLoad& load) {
  return load_skinned(strip, rect, load);
}

int CUICtrlMgr::LoadTabBtn(CListTab& strip, const ControlToLoad& load) {
  if (strip.GetSafeHwnd() == nullptr) return 0;
  CRect rect;
  return LoadGdiBtn(strip.AddBtn(), rect, {&strip, load.id, load.skin});
}

}  // namespace corvane
