#pragma once
// Shows a text of several lines: what was recognised, or why not.
#include "apps/capture/panel.h"

namespace capture {

class CTextPanel : public CPanel {
 public:
  using CPanel::CPanel;
  void SetText(const corvane::CString& text);

 protected:
  void DrawContent(HDC dc, const RECT& content) override;
  int ContentHeight(int width) override;

 private:
  // Draws with the box's font; with DT_CALCRECT only measures.
  void draw_lines(HDC dc, RECT& rect, UINT format) const;

  corvane::CString text_;
};

}  // namespace capture
