#include "apps/capture/open_panel.h"

#include <algorithm>
#include <iterator>

#include "apps/capture/capture_messages.h"
#include "apps/capture/fill.h"
#include "apps/capture/palette.h"
#include "apps/capture/picture_folder.h"
#include "apps/capture/sorted_listing.h"
#include "apps/capture/texts.h"
#include "corvane/platform/drawing/gdi_dc.h"

namespace capture {
namespace {

using namespace corvane;

constexpr int kRowHeight = 40;
constexpr int kIconWidth = 40;

// A folder is a plate with a tab, a picture a frame.
void DrawIcon(HDC dc, const RECT& row, bool folder) {
  CRect icon(row.left + 10, row.top + 12, row.left + 30, row.bottom - 12);
  if (folder) {
    FillWith(dc, icon, kAccentColor);
    FillWith(dc, CRect(icon.left, icon.top - 3, icon.left + 9, icon.top), kAccentColor);
    return;
  }
  FillWith(dc, icon, kQuietTextColor);
  icon.DeflateRect(2, 2);
  FillWith(dc, icon, kPanelColor);
}

}  // namespace

const MessageMap* COpenPanel::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(On<WM_MOUSEMOVE>(&COpenPanel::OnMouseMove),
                                                 On<WM_LBUTTONUP>(&COpenPanel::OnLButtonUp),
                                                 On<WM_KEYDOWN>(&COpenPanel::OnKeyDown));
  static const MessageMap map = kMessages.Extending(CPanel::GetMessageMap());
  return &map;
}

void COpenPanel::ListFolder(const std::wstring& folder, const std::wstring& current) {
  folder_ = folder;
  entries_.clear();
  const std::wstring above = FolderOf(folder);
  if (!above.empty()) entries_.push_back({above, L"..", true});
  FolderEntries found = ReadFolder(folder).value_or(FolderEntries{});
  std::vector<std::wstring> folders;
  std::merge(found.folders.begin(), found.folders.end(), found.links.begin(), found.links.end(),
             std::back_inserter(folders), StandsBefore);
  for (const std::wstring& name : folders) entries_.push_back({folder + L'\\' + name, name, true});
  for (const std::wstring& name : found.pictures) {
    entries_.push_back({folder + L'\\' + name, name, false});
  }
  const auto here = std::find_if(entries_.begin(), entries_.end(),
                                 [&](const Entry& entry) { return entry.path == current; });
  marked_ = here == entries_.end() ? -1 : static_cast<int>(here - entries_.begin());
  SetTitle(NameOf(folder).c_str());
  ScrollTo(0);
  ShowMarked();
}

void COpenPanel::ShowMarked() {
  if (marked_ < 0) return;
  CRect content(ContentRect());
  int top = marked_ * kRowHeight;
  if (top < scroll()) ScrollTo(top);
  if (top + kRowHeight > scroll() + content.Height()) {
    ScrollTo(top + kRowHeight - content.Height());
  }
}

void COpenPanel::DrawContent(HDC dc, const RECT& content) {
  int first = scroll() / kRowHeight;
  for (int i = first; i < static_cast<int>(entries_.size()); ++i) {
    int top = content.top + i * kRowHeight - scroll();
    if (top >= content.bottom) break;
    RECT row{content.left, top, content.right, top + kRowHeight};
    DrawEntry(dc, entries_[static_cast<std::size_t>(i)], row, i == marked_);
  }
}

void COpenPanel::DrawEntry(HDC dc, const Entry& entry, const RECT& row, bool marked) {
  if (marked) FillWith(dc, row, kRowHoverColor);
  DrawIcon(dc, row, entry.folder);
  LOGFONTW font = UiFont(19);
  CRect text(row.left + kIconWidth, row.top, row.right - 8, row.bottom);
  CGdiDC().DrawTextW(dc, entry.label.c_str(), &font, text, kTextArgb, DT_VCENTER | DT_SINGLELINE);
}

int COpenPanel::ContentHeight(int) { return static_cast<int>(entries_.size()) * kRowHeight; }

int COpenPanel::EntryAt(CPoint point) const {
  CRect content(ContentRect());
  if (!content.PtInRect(point)) return -1;
  int index = (point.y - content.top + scroll()) / kRowHeight;
  return index < static_cast<int>(entries_.size()) ? index : -1;
}

void COpenPanel::Mark(int index) {
  if (index == marked_) return;
  marked_ = index;
  Invalidate(FALSE);
}

void COpenPanel::OnMouseMove(UINT, CPoint point) { Mark(EntryAt(point)); }

void COpenPanel::OnLButtonUp(UINT, CPoint point) { OpenEntry(EntryAt(point)); }

void COpenPanel::OpenEntry(int index) {
  if (index < 0) return;
  const Entry entry = entries_[static_cast<std::size_t>(index)];
  if (entry.folder) {
    ListFolder(entry.path, folder_);
    return;
  }
  chosen_ = entry.path;
  Close();
  ::PostMessageW(::GetParent(m_hWnd), WM_PICTURE_CHOSEN, 0, 0);
}

void COpenPanel::OnKeyDown(UINT key, UINT, UINT) {
  int last = static_cast<int>(entries_.size()) - 1;
  if (key == VK_RETURN) {
    OpenEntry(marked_);
  } else if (last >= 0 && (key == VK_DOWN || key == VK_UP)) {
    Mark(std::clamp(marked_ + (key == VK_DOWN ? 1 : -1), 0, last));
    ShowMarked();
  } else {
    Default();
  }
}

}  // namespace capture
