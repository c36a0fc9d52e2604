#pragma once
// Shows a text of several lines: what was recognised, or why not. It can be selected with the mouse
// and copied.
#include <optional>

#include "apps/capture/panel.h"
#include "apps/capture/text_lines.h"

namespace capture {

class CTextPanel : public CPanel {
 public:
  using CPanel::CPanel;
  void SetText(const corvane::CString& text);
  void SelectAll();
  // Copies what is selected, or all when nothing is. False when the clipboard cannot be had.
  bool CopyText();
  TextRange selected() const { return selection_.range(); }

 protected:
  const corvane::MessageMap* GetMessageMap() const override;
  void DrawContent(HDC dc, const RECT& content) override;
  int ContentHeight(int width) override;
  void OnLButtonDown(UINT flags, corvane::CPoint point);
  void OnMouseMove(UINT flags, corvane::CPoint point);
  void OnLButtonUp(UINT flags, corvane::CPoint point);
  void OnCaptureChanged(corvane::CWnd* new_owner);
  BOOL OnSetCursor(corvane::CWnd* window, UINT hit_code, UINT mouse_message);

 private:
  class FontInUse;
  void lay_out(int width);
  std::size_t position_at(POINT point);
  void draw_line(HDC dc, const TextRange& line, POINT place, const CTextLines::Measure& measure,
                 int height);

  std::wstring text_;
  CTextLines lines_;
  std::optional<int> width_;  // for which the lines were laid out
  CTextSelection selection_;
  bool selecting_ = false;  // with the mouse
};

}  // namespace capture
