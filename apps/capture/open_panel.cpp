#include "apps/capture/open_panel.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "apps/capture/capture_messages.h"
#include "apps/capture/fill.h"
#include "apps/capture/picture_folder.h"
#include "apps/capture/sorted_listing.h"

namespace capture {
namespace {

using namespace corvane;

constexpr int kIconWidth = 40;

// A folder is a plate with a tab, a picture a frame.
void draw_icon(HDC dc, const RECT& row, bool folder, const CLook& look) {
  CRect icon(row.left + 10, row.top + 12, row.left + 30, row.bottom - 12);
  if (folder) {
    fill_with(dc, icon, look.color(Shade::accent));
    fill_with(dc, CRect(icon.left, icon.top - 3, icon.left + 9, icon.top),
              look.color(Shade::accent));
    return;
  }
  fill_with(dc, icon, look.color(Shade::quiet_text));
  icon.DeflateRect(2, 2);
  fill_with(dc, icon, look.color(Shade::panel));
}

}  // namespace

const MessageMap* COpenPanel::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(
      On<WM_MOUSEMOVE>(&COpenPanel::OnMouseMove), On<WM_LBUTTONDOWN>(&COpenPanel::OnLButtonDown),
      On<WM_LBUTTONUP>(&COpenPanel::OnLButtonUp), OnMessage<WM_WORK_DONE>(&COpenPanel::OnWorkDone),
      On<WM_KEYDOWN>(&COpenPanel::OnKeyDown));
  static const MessageMap map = kMessages.extending(CPanel::GetMessageMap());
  return &map;
}

void COpenPanel::ListFolder(const std::wstring& folder, const std::wstring& current) {
  folder_ = folder;
  Entries first;
  const std::wstring above = folder_of(folder);
  if (!above.empty()) first.push_back({above, look().text(Text::folder_above).AsStdString(), true});
  begin_listing(first, current);
  SetTitle(name_of(folder).c_str());
  work_->FinishWithin(kFrame);
  if (!work_->Busy()) return;
  first.push_back({{}, look().text(Text::opening).AsStdString(), true});
  show(std::move(first), current);
}

void COpenPanel::begin_listing(const Entries& first, const std::wstring& current) {
  if (work_ == nullptr) {
    work_ = std::make_unique<CBackgroundWork>(
        [window = m_hWnd] { ::PostMessageW(window, WM_WORK_DONE, 0, 0); });
  }
  const int count = ++listed_last_;
  work_->Begin([this, count, entries = first, folder = folder_,
                current](const std::stop_token& stop) mutable -> CBackgroundWork::Finish {
    if (stop.stop_requested() || count != listed_last_) return {};
    read_into(entries, folder);
    return [this, count, entries = std::move(entries), current]() mutable {
      if (count == listed_last_) show(std::move(entries), current);
    };
  });
}

void COpenPanel::read_into(Entries& entries, const std::wstring& folder) {
  FolderEntries found = read_folder(folder).value_or(FolderEntries{});
  std::vector<std::wstring> folders;
  std::merge(found.folders.begin(), found.folders.end(), found.links.begin(), found.links.end(),
             std::back_inserter(folders), stands_before);
  for (const std::wstring& name : folders) entries.push_back({path_in(folder, name), name, true});
  for (const std::wstring& name : found.pictures) {
    entries.push_back({path_in(folder, name), name, false});
  }
}

void COpenPanel::show(Entries entries, const std::wstring& current) {
  entries_ = std::move(entries);
  const auto here = std::find_if(entries_.begin(), entries_.end(),
                                 [&](const Entry& entry) { return entry.path == current; });
  marked_ = here == entries_.end() ? -1 : static_cast<int>(here - entries_.begin());
  pressed_ = -1;
  ScrollTo(0);
  show_marked();
}

LRESULT COpenPanel::OnWorkDone(WPARAM, LPARAM) {
  work_->FinishDone();
  return 0;
}

void COpenPanel::show_marked() {
  if (marked_ < 0) return;
  const CRect content(ContentRect());
  const int top = marked_ * row_height();
  if (top < scroll()) ScrollTo(top);
  if (top + row_height() > scroll() + content.Height()) {
    ScrollTo(top + row_height() - content.Height());
  }
}

void COpenPanel::DrawContent(HDC dc, const RECT& content) {
  const int first = scroll() / row_height();
  for (int i = first; i < static_cast<int>(entries_.size()); ++i) {
    const int top = content.top + i * row_height() - scroll();
    if (top >= content.bottom) break;
    const RECT row{content.left, top, content.right, top + row_height()};
    draw_entry(dc, entries_[static_cast<std::size_t>(i)], row, i == marked_);
  }
}

void COpenPanel::draw_entry(HDC dc, const Entry& entry, const RECT& row, bool marked) {
  if (marked) fill_with(dc, row, look().color(Shade::hovered_row));
  if (!entry.path.empty()) draw_icon(dc, row, entry.folder, look());
  const LOGFONTW font = look().font(Text::folder_above);
  const CRect text(row.left + kIconWidth, row.top, row.right - 8, row.bottom);
  draw_text(dc, entry.label.c_str(), text, font, look().color(Shade::text),
            DT_VCENTER | DT_SINGLELINE);
}

int COpenPanel::ContentHeight(int) { return static_cast<int>(entries_.size()) * row_height(); }

int COpenPanel::entry_at(CPoint point) const {
  const CRect content(ContentRect());
  if (!content.PtInRect(point)) return -1;
  const int index = (point.y - content.top + scroll()) / row_height();
  return index < static_cast<int>(entries_.size()) ? index : -1;
}

void COpenPanel::mark(int index) {
  if (index == marked_) return;
  marked_ = index;
  Invalidate(FALSE);
}

void COpenPanel::OnMouseMove(UINT, CPoint point) { mark(entry_at(point)); }

void COpenPanel::OnLButtonDown(UINT, CPoint point) { pressed_ = entry_at(point); }

// The second press of a double click is none: it was meant for what the first one has opened.
void COpenPanel::OnLButtonUp(UINT, CPoint point) {
  const int pressed = std::exchange(pressed_, -1);
  if (entry_at(point) == pressed) open_entry(pressed);
}

void COpenPanel::open_entry(int index) {
  if (index < 0) return;
  const Entry entry = entries_[static_cast<std::size_t>(index)];
  if (entry.path.empty()) return;
  if (entry.folder) {
    const std::wstring came_from = folder_;  // which listing replaces
    ListFolder(entry.path, came_from);
    return;
  }
  chosen_ = entry.path;
  Close();
  ::PostMessageW(::GetParent(m_hWnd), WM_PICTURE_CHOSEN, 0, 0);
}

void COpenPanel::OnKeyDown(UINT key, UINT, UINT) {
  const int last = static_cast<int>(entries_.size()) - 1;
  if (key == VK_RETURN) {
    open_entry(marked_);
  } else if (last >= 0 && (key == VK_DOWN || key == VK_UP)) {
    mark(std::clamp(marked_ + (key == VK_DOWN ? 1 : -1), 0, last));
    show_marked();
  } else {
    Default();
  }
}

}  // namespace capture
