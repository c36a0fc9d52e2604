#pragma once
// Shows a text of several lines: what was recognised, or why not.
#include "apps/capture/panel.h"

namespace capture {

class CTextPanel : public CPanel {
 public:
  void SetText(const corvane::CString& text);

 protected:
  void DrawContent(HDC dc, const RECT& content) override;
  int ContentHeight(int width) override;

 private:
  corvane::CString text_;
};

}  // namespace capture
