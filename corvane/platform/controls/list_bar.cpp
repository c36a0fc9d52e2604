#include "corvane/platform/controls/list_bar.h"

namespace corvane {

const MessageMap* CListBar::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(On<WM_SIZE>(&CListBar::OnSize));
  static const MessageMap map = kMessages.extending(CSkinnedWnd::GetMessageMap());
  return &map;
}

int CListBar::CreateForwardBtn(const CString& image_path) {
  return create_btn(forward_, kForwardId, image_path);
}

int CListBar::CreateBackwardBtn(const CString& image_path) {
  return create_btn(backward_, kBackwardId, image_path);
}

int CListBar::create_btn(CGdiBtnEx& button, UINT id, const CString& image_path) {
  if (m_hWnd == nullptr || button.GetSafeHwnd() != nullptr) return 0;
  ButtonSkin skin;
  CGdiImage& image = skin.images[static_cast<std::size_t>(ButtonLook::normal)];
  image.Load(image_path);
  const CRect rect(0, 0, image.GetWidth(), image.GetHeight());
  button.SetSkin(skin);
  if (!button.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, rect, this, id)) return 0;
  place();
  return 1;
}

void CListBar::place() {
  CRect client, rect;
  GetClientRect(client);
  if (backward_.GetSafeHwnd() != nullptr) {
    backward_.GetClientRect(rect);
    backward_.MoveWindow(0, (client.Height() - rect.Height()) / 2, rect.Width(), rect.Height());
  }
  if (forward_.GetSafeHwnd() != nullptr) {
    forward_.GetClientRect(rect);
    forward_.MoveWindow(client.right - rect.Width(), (client.Height() - rect.Height()) / 2,
                        rect.Width(), rect.Height());
  }
}

void CListBar::OnSize(UINT kind, int width, int height) {
  CSkinnedWnd::OnSize(kind, width, height);
  place();
}

BOOL CListBar::OnCommand(WPARAM wparam, LPARAM lparam) {
  if (!lparam) return CSkinnedWnd::OnCommand(wparam, lparam);
  ::SendMessageW(::GetParent(m_hWnd), WM_COMMAND, wparam, lparam);
  return TRUE;
}

}  // namespace corvane
