#pragma once
// The skin of one window: reads the window's numbered list from the skin files, keeps its records,
// and creates skinned controls from them. Missing files, lists and records never stop a program:
// lookups then return null or empty values. Belongs to the window's thread.
#include "corvane/platform/framework/c_string.h"
#include "corvane/platform/framework/rect.h"
#include "corvane/platform/platform.h"
#include "corvane/platform/skin_reader/control_mgr.h"
#include "corvane/platform/skin_reader/language_mgr.h"
#include "corvane/platform/skin_reader/logfont_mgr.h"
#include "corvane/skin/skin_list.h"
#include "corvane/skin/skin_lists.h"

namespace corvane {

class CGdiBtnEx;
class CGdiComboBox;
class CGdiEditEx;
class CGdiImage;
class CGdiSlider;
class CHdcBtn;
class CListBar;
class CListTab;
class CPictureEx;
class CWnd;

class CXmlListMgr {
 public:
  CXmlListMgr() = default;
  ~CXmlListMgr();
  CXmlListMgr(const CXmlListMgr&) = delete;  // a copy would share the records
  CXmlListMgr& operator=(const CXmlListMgr&) = delete;

  // Replaces the lists by a window's, from the skin's three files: all three, or only the controls.
  // The captions are those of the language that SetSkinLanguage named.
  void Load(const SkinList& list);
  // Replace a list by that of a file in the configuration folder. Fonts are read whole. A file that
  // cannot be read leaves the list empty. A path with characters outside the thread's code page
  // throws PathConversionError.
  void LoadCtrlList(const CString& file_name, int list_id);
  void LoadLanguageList(const CString& file_name, int list_id);
  void LoadLogfontList(const CString& file_name);

  // The first record with that id, or null; valid until its list is loaded or released again.
  _MYCONTROL* GetCtrl(int id) const { return lists_.control(id); }
  _MYLANGUAGE* GetLanguage(int id) const { return lists_.caption(id); }
  _MYFONT* GetMyFont(int id) const { return lists_.font(id); }

  // COLORREF of the control list last loaded, 0 before; outlives CtrlRelease.
  DWORD GetBgColor() const { return lists_.background; }
  CRect GetBgRect(int id) const;  // (0, 0, 0, 0) without such a control
  // The image folder, a backslash and the control's main image; ends with the backslash without
  // such a control.
  CString GetBgImgPath(int id) const;

  // The pictures of a control; the image is emptied when there is none.
  void LoadGdiImage(CGdiImage& image, CRect& rect, int id) const;
  void LoadDownGdiImage(CGdiImage& image, int id) const;

  // Create a control as a child of `parent` with the control id as its window id, skinned with the
  // control's record, its caption and the caption's font. `rect` receives the record's rectangle
  // in the parent's client coordinates, (0, 0, 0, 0) without a record.
  void LoadGdiBtn(CGdiBtnEx& button, CRect& rect, CWnd* parent, int id) const;
  void LoadHdcBtn(CHdcBtn& button, CRect& rect, CWnd* parent, int id) const;
  void LoadGdiSlider(CGdiSlider& slider, CRect& rect, CWnd* parent, int id) const;
  void LoadGdiComboBox(CGdiComboBox& box, CRect& rect, CWnd* parent, int id) const;
  void LoadGdiEditEx(CGdiEditEx& edit, CRect& rect, CWnd* parent, int id) const;
  // Nothing happens without a record; `rect` keeps its value.
  void LoadListTab(CListTab& strip, CRect& rect, CWnd* parent, int id) const;
  // Adds a button to a strip that has a window; without a record an empty one.
  void AddListTabBtn(CListTab& strip, int id) const;
  // Both create their window at (0, 0, 0, 0) and show it when there is a record; the caller moves
  // it to the rectangle. Without a record it stays hidden and the rectangle is (0, 0, 0, 0).
  void LoadListBar(CListBar& bar, CRect& rect, CWnd* parent, int id) const;
  void LoadGifStatic(CPictureEx& picture, CRect& rect, CWnd* parent, int id) const;

  void CtrlRelease() { lists_.release_controls(); }
  void LanguageRelease() { lists_.release_captions(); }
  void LogfontRelease() { lists_.release_fonts(); }
  void Release();

 private:
  template <typename Control, typename Loader>
  void load_joined(Control& control, CRect& rect, CWnd* parent, int id, Loader loader) const;

  SkinLists lists_;
  CControlMgr control_reader_;
  CLanguageMgr language_reader_;
  CLogfontMgr font_reader_;
};

}  // namespace corvane
