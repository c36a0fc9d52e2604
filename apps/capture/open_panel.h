#pragma once
// Lists the folders and pictures of a folder; a click (or Enter) opens one.
#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "apps/capture/background_work.h"
#include "apps/capture/panel.h"

namespace capture {

// Posts WM_PICTURE_CHOSEN to its owner.
class COpenPanel : public CPanel {
 public:
  using CPanel::CPanel;
  // Full wide paths. Lists the folder and marks `current`, when it is there. What takes longer
  // than a frame is shown when it has been read.
  void ListFolder(const std::wstring& folder, const std::wstring& current);
  bool Listing() const { return work_ != nullptr && work_->Busy(); }
  const std::wstring& ChosenPath() const { return chosen_; }

 protected:
  const corvane::MessageMap* GetMessageMap() const override;
  void DrawContent(HDC dc, const RECT& content) override;
  int ContentHeight(int width) override;
  void OnMouseMove(UINT flags, corvane::CPoint point);
  void OnLButtonDown(UINT flags, corvane::CPoint point);
  void OnLButtonUp(UINT flags, corvane::CPoint point);
  void OnKeyDown(UINT key, UINT repeats, UINT flags);
  LRESULT OnWorkDone(WPARAM, LPARAM);

 private:
  struct Entry {
    std::wstring path;  // empty: nothing to open
    std::wstring label;
    bool folder = false;
  };
  using Entries = std::vector<Entry>;
  static void read_into(Entries& entries, const std::wstring& folder);  // any thread
  void begin_listing(const Entries& first, const std::wstring& current);
  void show(Entries entries, const std::wstring& current);
  int entry_at(corvane::CPoint point) const;  // -1: none
  void mark(int index);
  void show_marked();  // scrolls it into view
  void open_entry(int index);
  int row_height() const { return static_cast<int>(look().size(Measure::box_row).cy); }
  void draw_entry(HDC dc, const Entry& entry, const RECT& row, bool marked);

  std::wstring folder_;
  Entries entries_;
  int marked_ = -1;
  int pressed_ = -1;  // the entry that the mouse went down on
  std::wstring chosen_;
  std::atomic<int> listed_last_ = 0;       // counts: only the last folder asked for is shown
  std::unique_ptr<CBackgroundWork> work_;  // made for the first folder
};

}  // namespace capture
