#pragma once
// Lists the folders and pictures of a folder; a click (or Enter) opens one.
#include <string>
#include <vector>

#include "apps/capture/panel.h"

namespace capture {

// Posts WM_PICTURE_CHOSEN to its owner.
class COpenPanel : public CPanel {
 public:
  using CPanel::CPanel;
  // Full wide paths. Lists the folder and marks `current`, when it is there.
  void ListFolder(const std::wstring& folder, const std::wstring& current);
  const std::wstring& ChosenPath() const { return chosen_; }

 protected:
  const corvane::MessageMap* GetMessageMap() const override;
  void DrawContent(HDC dc, const RECT& content) override;
  int ContentHeight(int width) override;
  void OnMouseMove(UINT flags, corvane::CPoint point);
  void OnLButtonUp(UINT flags, corvane::CPoint point);
  void OnKeyDown(UINT key, UINT repeats, UINT flags);

 private:
  struct Entry {
    std::wstring path;
    std::wstring label;
    bool folder = false;
  };
  int entry_at(corvane::CPoint point) const;  // -1: none
  void mark(int index);
  void show_marked();  // scrolls it into view
  void open_entry(int index);
  int row_height() const { return static_cast<int>(look().size(Measure::box_row).cy); }
  void draw_entry(HDC dc, const Entry& entry, const RECT& row, bool marked);

  std::wstring folder_;
  std::vector<Entry> entries_;
  int marked_ = -1;
  std::wstring chosen_;
};

}  // namespace capture
