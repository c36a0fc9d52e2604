#pragma once
// A strip of tab buttons. So far: its window with the skin's main image, and the buttons at their
// records' rectangles; their clicks reach the strip's parent as the buttons sent them.
#include <memory>
#include <vector>

#include "corvane/platform/controls/gdi_btn_ex.h"
#include "corvane/platform/controls/skinned_wnd.h"

namespace corvane {

class CListTab : public CSkinnedWnd {
 public:
  // A new button without a window, owned by the strip.
  CGdiBtnEx& AddBtn();
  int GetBtnCount() const { return static_cast<int>(buttons_.size()); }

 protected:
  BOOL OnCommand(WPARAM wparam, LPARAM lparam) override;

 private:
  std::vector<std::unique_ptr<CGdiBtnEx>> buttons_;
};

}  // namespace corvane
