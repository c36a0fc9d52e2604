#pragma once
// Creates and skins controls from skin records. Made for one call; holds nothing. Any record may
// be null: then the control has no image, no caption or the default font, and a control without
// its record is created empty at (0, 0, 0, 0). Results: 1, or 0 when nothing was loaded or created.
#include "corvane/platform/framework/rect.h"
#include "corvane/platform/platform.h"
#include "corvane/platform/skin_reader/records.h"

namespace corvane {

class CGdiBtnEx;
class CGdiComboBox;
class CGdiEditEx;
class CGdiImage;
class CGdiSlider;
class CHdcBtn;
class CListTab;
class CWnd;

// What a loader makes a control from.
struct ControlToLoad {
  CWnd* parent = nullptr;
  UINT id = 0;  // of the control's window
  SkinnedControl skin;
};

class CUICtrlMgr {
 public:
  // The control's normal, pressed-state or selected-state image; the object is emptied when there
  // is none.
  int LoadGdiImage(CGdiImage& image, const _MYCONTROL* control);
  int LoadDownGdiImage(CGdiImage& image, const _MYCONTROL* control);
  int LoadSelectImage(CGdiImage& image, const _MYCONTROL* control);

  // Create the control's window as a visible child of its parent at the record's rectangle, which
  // `rect` receives (client coordinates of the parent). A control that has a window is skinned and
  // moved instead.
  int LoadGdiBtn(CGdiBtnEx& button, CRect& rect, const ControlToLoad& load);
  int LoadHdcBtn(CHdcBtn& button, CRect& rect, const ControlToLoad& load);
  int LoadGdiSlider(CGdiSlider& slider, CRect& rect, const ControlToLoad& load);
  int LoadGdiComboBox(CGdiComboBox& box, CRect& rect, const ControlToLoad& load);
  int LoadGdiEditEx(CGdiEditEx& edit, CRect& rect, const ControlToLoad& load);
  int LoadListTab(CListTab& strip, CRect& rect, const ControlToLoad& load);
  // Adds a button to a strip that has a window and is its parent.
  int LoadTabBtn(CListTab& strip, const ControlToLoad& load);
};

}  // namespace corvane
