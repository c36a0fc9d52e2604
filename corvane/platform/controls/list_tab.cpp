#include "corvane/platform/controls/list_tab.h"

namespace corvane {

CGdiBtnEx& CListTab::AddBtn() { return *buttons_.emplace_back(std::make_unique<CGdiBtnEx>()); }

BOOL CListTab::OnCommand(WPARAM wparam, LPARAM lparam) {
  if (!lparam) return CSkinnedWnd::OnCommand(wparam, lparam);
  ::SendMessageW(::GetParent(m_hWnd), WM_COMMAND, wparam, lparam);
  return TRUE;
}

}  // namespace corvane
