#pragma once
// A bar with a paging button at each end. So far: the bar, the buttons with their images, and
// their clicks, which reach the bar's parent as the buttons sent them (ids below).
#include "corvane/platform/controls/gdi_btn_ex.h"
#include "corvane/platform/controls/skinned_wnd.h"

namespace corvane {

class CListBar : public CSkinnedWnd {
 public:
  static constexpr UINT kForwardId = 1;   // at the right end
  static constexpr UINT kBackwardId = 2;  // at the left end

  // Create a paging button with the picture of that file (wide path), as large as the picture.
  // 1, or 0 when there is no bar window or there is such a button already.
  int CreateForwardBtn(const CString& image_path);
  int CreateBackwardBtn(const CString& image_path);

 protected:
  const MessageMap* GetMessageMap() const override;
  void OnSize(UINT kind, int width, int height);
  BOOL OnCommand(WPARAM wparam, LPARAM lparam) override;

 private:
  int create_btn(CGdiBtnEx& button, UINT id, const CString& image_path);
  void place();

  CGdiBtnEx forward_;
  CGdiBtnEx backward_;
};

}  // namespace corvane
