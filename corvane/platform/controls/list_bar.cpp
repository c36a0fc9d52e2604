#include "corvane/platform/controls/list_bar.h"

#include "corvane/platform/framework/window_watch.h"

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
  // A parent that hears of the button may end the bar.
  const WindowWatch watch(*this);
  const bool created = button.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, rect, this, id);
  if (!created || watch.window_gone()) return 0;
  place();
  return 1;
}

void CListBar::place() {
  const WindowWatch watch(*this);
  CRect client, rect;
  GetClientRect(client);
  if (backward_.GetSafeHwnd() != nullptr) {
    backward_.GetClientRect(rect);
    backward_.MoveWindow(0, (client.Height() - rect.Height()) / 2, rect.Width(), rect.Height());
  }
  if (!watch.window_gone() && forward_.GetSafeHwnd() != nullptr) {
    forward_.GetClientRect(rect);
    forward_.MoveWindow(client.right - rect.Width(), (client.Height() - rect.Height()) / 2,
                        rect.Width(), rect.Height());
  }
}

void CListBar::OnSize(UINT kind, int width, int height) {
  const WindowWatch watch(*this);
  CSkinnedWnd::OnSize(kind, width, height);
  if (!watch.window_gone()) place();
}

BOOL CListBar::OnCommand(WPARAM wparam, LPARAM lparam) {
  if (!lparam) return CSkinnedWnd::OnCommand(wparam, lparam);
  ::SendMessageW(::GetParent(m_hWnd), WM_COMMAND, wparam, lparam);
  return TRUE;
}

}  // namespace corvane
