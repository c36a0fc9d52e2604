#include "corvane/platform/controls/skinned_wnd.h"

#include "corvane/platform/controls/image_file.h"
#include "corvane/platform/drawing/buffer_dc.h"
#include "corvane/platform/drawing/gdi_dc.h"
#include "corvane/platform/framework/paint_dc.h"
#include "corvane/platform/framework/window_watch.h"

namespace corvane {

const MessageMap* CSkinnedWnd::GetMessageMap() const {
  static constexpr auto kMessages =
      MessageTable(On<WM_ERASEBKGND>(&CSkinnedWnd::OnEraseBkgnd),
                   On<WM_PAINT>(&CSkinnedWnd::OnPaint), On<WM_SIZE>(&CSkinnedWnd::OnSize));
  static const MessageMap map = kMessages.extending(CWnd::GetMessageMap());
  return &map;
}

void CSkinnedWnd::SetImage(const CGdiImage& image) {
  image_ = image;
  Invalidate(FALSE);
}

void CSkinnedWnd::SetSkin(const _MYCONTROL* control, const _MYLANGUAGE* caption) {
  load_skin_image(image_, control != nullptr ? control->image : CString());
  if (m_hWnd != nullptr && caption != nullptr) SetWindowTextW(caption->text);
  Invalidate(FALSE);
}

BOOL CSkinnedWnd::OnEraseBkgnd(CDC*) { return TRUE; }

void CSkinnedWnd::OnPaint() {
  const WindowWatch watch(*this);
  const CPaintDC dc(this);
  if (watch.window_gone()) return;  // erasing may have ended the control
  CRect client;
  GetClientRect(client);
  CBufferDC picture;
  if (!picture.CreateBufferDC(nullptr, client)) return;
  picture.SetBackColor(client, GetSysColor(COLOR_BTNFACE));
  CGdiDC().DrawImage(picture, image_.GetImage(), client);
  picture.Paste(dc.GetSafeHdc(), client);
}

void CSkinnedWnd::OnSize(UINT kind, int width, int height) {
  CWnd::OnSize(kind, width, height);
  Invalidate(FALSE);
}

}  // namespace corvane
