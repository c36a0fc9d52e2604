#pragma once
// What the simpler skinned controls share: a child window that shows one image of its skin, scaled
// to its client area, over the colour of the platform's controls.
#include "corvane/platform/framework/c_string.h"
#include "corvane/platform/framework/wnd.h"
#include "corvane/platform/images/gdi_image.h"
#include "corvane/platform/skin_reader/records.h"

namespace corvane {

class CSkinnedWnd : public CWnd {
 public:
  void SetImage(const CGdiImage& image);  // shares the picture
  const CGdiImage& GetSkinImage() const { return image_; }
  // The control's main image, and the caption as window text; each record may be null.
  void SetSkin(const _MYCONTROL* control, const _MYLANGUAGE* caption);

 protected:
  const MessageMap* GetMessageMap() const override;
  BOOL OnEraseBkgnd(CDC* dc);
  void OnPaint();
  void OnSize(UINT kind, int width, int height);

 private:
  CGdiImage image_;
};

}  // namespace corvane
