#pragma once
// A picture that lets the mouse through. So far it shows the file's first frame, scaled.
#include "corvane/platform/controls/skinned_wnd.h"

namespace corvane {

class CPictureEx : public CSkinnedWnd {
 public:
  // Creates the window. False: none was made.
  bool CreateStatic(const CString& text, DWORD style, const RECT& rect, CWnd* parent, UINT id);
  // The picture of a file (wide path). 1, or 0 when it is none; then nothing is shown.
  int Load(const CString& path);

 protected:
  const MessageMap* GetMessageMap() const override;
  LRESULT OnNcHitTest(CPoint screen_point);
};

}  // namespace corvane
