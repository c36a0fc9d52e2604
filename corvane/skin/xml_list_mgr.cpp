#include "corvane/skin/xml_list_mgr.h"

#include "corvane/platform/base_services/installation.h"
#include "corvane/platform/base_services/paths.h"
#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/controls/gdi_btn_ex.h"
#include "corvane/platform/controls/gdi_combo_box.h"
#include "corvane/platform/controls/gdi_edit_ex.h"
#include "corvane/platform/controls/gdi_slider.h"
#include "corvane/platform/controls/hdc_btn.h"
#include "corvane/platform/controls/list_bar.h"
#include "corvane/platform/controls/list_tab.h"
#include "corvane/platform/controls/picture_ex.h"
#include "corvane/platform/controls/ui_ctrl_mgr.h"
#include "corvane/platform/framework/window_watch.h"
#include "corvane/platform/images/gdi_image.h"

namespace corvane {
namespace {

std::string narrow_config_path(const CString& file_name) {
  return narrow_path(GetConfigPath(file_name).AsStdString());
}

CString image_folder() { return GetImagePath() + L"\\"; }

constexpr const wchar_t* kControlFile = L"ui_control.xml";
constexpr const wchar_t* kFontFile = L"ui_logfont.xml";

}  // namespace

CXmlListMgr::~CXmlListMgr() { Release(); }

void CXmlListMgr::Load(const SkinList& list) {
  LoadCtrlList(kControlFile, list.id);
  if (list.reads == SkinReads::controls) return;
  LoadLanguageList(CaptionFile(), list.id);
  LoadLogfontList(kFontFile);
}

void CXmlListMgr::LoadCtrlList(const CString& file_name, int list_id) {
  CtrlRelease();
  control_reader_.Load(narrow_config_path(file_name).c_str());
  control_reader_.ReadControl(lists_.controls, list_id, &lists_.background);
}

void CXmlListMgr::LoadLanguageList(const CString& file_name, int list_id) {
  LanguageRelease();
  language_reader_.Load(narrow_config_path(file_name).c_str());
  language_reader_.ReadLanguage(lists_.captions, list_id);
}

void CXmlListMgr::LoadLogfontList(const CString& file_name) {
  LogfontRelease();
  font_reader_.Load(narrow_config_path(file_name).c_str());
  font_reader_.ReadLogfont(lists_.fonts);
}

CRect CXmlListMgr::GetBgRect(int id) const {
  const _MYCONTROL* const control = GetCtrl(id);
  return control != nullptr ? CRect(control->rect) : CRect();
}

CString CXmlListMgr::GetBgImgPath(int id) const {
  const _MYCONTROL* const control = GetCtrl(id);
  return control != nullptr ? image_folder() + control->image : image_folder();
}

void CXmlListMgr::LoadGdiImage(CGdiImage& image, CRect& rect, int id) const {
  rect = GetBgRect(id);
  CUICtrlMgr().LoadGdiImage(image, GetCtrl(id));
}

void CXmlListMgr::LoadDownGdiImage(CGdiImage& image, int id) const {
  CUICtrlMgr().LoadDownGdiImage(image, GetCtrl(id));
}

template <typename Control, typename Loader>
void CXmlListMgr::load_joined(Control& control, CRect& rect, CWnd* parent, int id,
                              Loader loader) const {
  CUICtrlMgr ui_loader;
  (ui_loader.*loader)(control, rect, {parent, static_cast<UINT>(id), lists_.joined(id)});
}

void CXmlListMgr::LoadGdiBtn(CGdiBtnEx& button, CRect& rect, CWnd* parent, int id) const {
  load_joined(button, rect, parent, id, &CUICtrlMgr::LoadGdiBtn);
}

void CXmlListMgr::LoadHdcBtn(CHdcBtn& button, CRect& rect, CWnd* parent, int id) const {
  load_joined(button, rect, parent, id, &CUICtrlMgr::LoadHdcBtn);
}

void CXmlListMgr::LoadGdiSlider(CGdiSlider& slider, CRect& rect, CWnd* parent, int id) const {
  load_joined(slider, rect, parent, id, &CUICtrlMgr::LoadGdiSlider);
}

void CXmlListMgr::LoadGdiComboBox(CGdiComboBox& box, CRect& rect, CWnd* parent, int id) const {
  load_joined(box, rect, parent, id, &CUICtrlMgr::LoadGdiComboBox);
}

void CXmlListMgr::LoadGdiEditEx(CGdiEditEx& edit, CRect& rect, CWnd* parent, int id) const {
  load_joined(edit, rect, parent, id, &CUICtrlMgr::LoadGdiEditEx);
}

void CXmlListMgr::LoadListTab(CListTab& strip, CRect& rect, CWnd* parent, int id) const {
  if (_MYCONTROL* const control = GetCtrl(id)) {
    CUICtrlMgr().LoadListTab(strip, rect, {parent, static_cast<UINT>(id), {control}});
  }
}

void CXmlListMgr::AddListTabBtn(CListTab& strip, int id) const {
  CUICtrlMgr().LoadTabBtn(strip, {&strip, static_cast<UINT>(id), lists_.joined(id)});
}

void CXmlListMgr::LoadListBar(CListBar& bar, CRect& rect, CWnd* parent, int id) const {
  rect.SetRectEmpty();
  // A parent that hears of the bar, or of its buttons, may end it.
  const WindowWatch creation(bar);
  bar.Create(nullptr, L"listBar", WS_CHILD | WS_TABSTOP, rect, parent, static_cast<UINT>(id));
  if (creation.object_gone() || bar.GetSafeHwnd() == nullptr) return;
  const WindowWatch watch(bar);
  const _MYCONTROL* const control = GetCtrl(id);
  if (control == nullptr) return;
  rect = control->rect;
  const CString backward_path = image_folder() + control->backward_image;
  bar.CreateForwardBtn(image_folder() + control->forward_image);
  if (!watch.window_gone()) bar.CreateBackwardBtn(backward_path);
  if (!watch.window_gone()) bar.ShowWindow(SW_SHOW);
}

void CXmlListMgr::LoadGifStatic(CPictureEx& picture, CRect& rect, CWnd* parent, int id) const {
  rect.SetRectEmpty();
  const WindowWatch creation(picture);
  picture.CreateStatic(L"gif", WS_CHILD | SS_BLACKRECT, rect, parent, static_cast<UINT>(id));
  if (creation.object_gone() || picture.GetSafeHwnd() == nullptr) return;
  const _MYCONTROL* const control = GetCtrl(id);
  if (control == nullptr) return;
  picture.Load(image_folder() + control->image);
  rect = control->rect;
  picture.ShowWindow(SW_SHOW);
}

void CXmlListMgr::Release() {
  CtrlRelease();
  LanguageRelease();
  LogfontRelease();
}

}  // namespace corvane
