#include "corvane/platform/controls/picture_ex.h"

namespace corvane {

const MessageMap* CPictureEx::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(On<WM_NCHITTEST>(&CPictureEx::OnNcHitTest));
  static const MessageMap map = kMessages.extending(CSkinnedWnd::GetMessageMap());
  return &map;
}

bool CPictureEx::CreateStatic(const CString& text, DWORD style, const RECT& rect, CWnd* parent,
                              UINT id) {
  return Create(nullptr, text, style | WS_CHILD, rect, parent, id);
}

int CPictureEx::Load(const CString& path) {
  CGdiImage image;
  const int loaded = image.Load(path);
  SetImage(image);
  return loaded;
}

LRESULT CPictureEx::OnNcHitTest(CPoint) { return HTTRANSPARENT; }

}  // namespace corvane
