#include "apps/capture/library_browser.h"

#include "apps/capture/picture_folder.h"

namespace capture {
namespace {

using corvane::CString;

CString name_for_user(const std::wstring& folder) { return CString(name_of(folder).c_str()); }

}  // namespace

bool CLibraryBrowser::Create(corvane::CWnd* parent) {
  return pane_.Open(parent) && strip_.Open(parent);
}

void CLibraryBrowser::Place(const RECT& pane, const RECT& strip) {
  pane_.MoveWindow(&pane);
  strip_.MoveWindow(&strip);
}

void CLibraryBrowser::Show(bool pane, bool strip) {
  pane_.ShowWindow(pane ? SW_SHOW : SW_HIDE);
  strip_.ShowWindow(strip ? SW_SHOW : SW_HIDE);
}

void CLibraryBrowser::Load(const std::wstring& root, const std::wstring& folder) {
  pane_.SetRoot(root);
  SelectFolder(lies_in(root, folder) ? folder : root);
}

void CLibraryBrowser::SelectFolder(const std::wstring& folder) {
  pane_.SetCurrent(folder);
  show_entries(Folder());
}

std::wstring CLibraryBrowser::Folder() const {
  const std::wstring folder = pane_.Current();
  return lies_in(pane_.root(), folder) ? folder : std::wstring();
}

CString CLibraryBrowser::LeaveVanishedFolder() {
  const std::wstring vanished = Folder();
  if (vanished.empty() || folder_exists(vanished)) return {};
  pane_.LeaveVanishedFolder();
  const std::wstring folder = Folder();
  if (folder.empty()) return look_.text(Text::folder_gone, {name_for_user(vanished)});
  return look_.text(Text::folder_left, {name_for_user(vanished), name_for_user(folder)});
}

CString CLibraryBrowser::Refresh() {
  CString notice = LeaveVanishedFolder();
  show_entries(Folder());
  return notice;
}

void CLibraryBrowser::show_entries(const std::wstring& folder) {
  if (folder.empty()) {
    strip_.ShowPictures(folder, {}, look_.text(Text::library_gone));
    pane_.SetCount(0);
    return;
  }
  auto entries = read_folder(folder);
  pane_.SetCount(entries ? static_cast<int>(entries->pictures.size()) : 0);
  const CString empty_text = look_.text(entries ? Text::folder_empty : Text::folder_unreadable);
  strip_.ShowPictures(folder, entries ? std::move(entries->pictures) : std::vector<std::wstring>(),
                      empty_text);
  if (folder_of(opened_) == folder) {
    strip_.Mark(name_of(opened_));
  } else {
    strip_.Mark({});
  }
}

void CLibraryBrowser::MarkOpened(const std::wstring& path) {
  opened_ = path;
  reached_ = path;
  const std::wstring folder = folder_of(path);
  if (folder != Folder() && lies_in(pane_.root(), folder)) {
    SelectFolder(folder);
    return;
  }
  strip_.Mark(folder == Folder() ? name_of(path) : std::wstring());
}

std::wstring CLibraryBrowser::Neighbour(int step) const {
  const std::wstring folder = Folder();
  const bool inside = folder_of(reached_) == folder;
  const std::wstring name =
      name_from(strip_.names(), inside ? name_of(reached_) : std::wstring(), step);
  return name.empty() ? name : path_in(folder, name);
}

}  // namespace capture
