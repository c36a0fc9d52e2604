#include "apps/capture/library_browser.h"

#include "apps/capture/picture_folder.h"

namespace capture {
namespace {

using corvane::CString;

CString NameForUser(const std::wstring& folder) { return CString(NameOf(folder).c_str()); }

}  // namespace

bool CLibraryBrowser::Create(corvane::CWnd* parent) {
  return pane_.Open(parent) && strip_.Open(parent);
}

void CLibraryBrowser::Place(const RECT& pane, const RECT& strip) {
  pane_.MoveWindow(&pane);
  strip_.MoveWindow(&strip);
}

void CLibraryBrowser::Load(const std::wstring& root, const std::wstring& folder) {
  pane_.SetRoot(root);
  pane_.SetCurrent(LiesIn(root, folder) ? folder : root);
  ShowEntries(Folder());
}

std::wstring CLibraryBrowser::Folder() const {
  std::wstring folder = pane_.Current();
  return LiesIn(pane_.root(), folder) ? folder : std::wstring();
}

CString CLibraryBrowser::LeaveVanishedFolder() {
  std::wstring vanished = Folder();
  if (vanished.empty() || FolderExists(vanished)) return {};
  pane_.LeaveVanishedFolder();
  CString notice = CString(L"文件夹“") + NameForUser(vanished) + L"”已不存在";
  std::wstring folder = Folder();
  return folder.empty() ? notice : notice + L"，已转到“" + NameForUser(folder) + L"”";
}

CString CLibraryBrowser::Refresh() {
  CString notice = LeaveVanishedFolder();
  ShowEntries(Folder());
  return notice;
}

void CLibraryBrowser::ShowEntries(const std::wstring& folder) {
  if (folder.empty()) {
    strip_.ShowPictures(folder, {}, L"图库已不存在");
    pane_.SetCount(0);
    return;
  }
  auto entries = ReadFolder(folder);
  pane_.SetCount(entries ? static_cast<int>(entries->pictures.size()) : 0);
  const wchar_t* empty_text = entries ? L"这个文件夹里没有图片" : L"无法读取这个文件夹";
  strip_.ShowPictures(folder, entries ? std::move(entries->pictures) : std::vector<std::wstring>(),
                      empty_text);
  if (FolderOf(opened_) == folder) {
    strip_.Mark(NameOf(opened_));
  } else {
    strip_.Mark({});
  }
}

void CLibraryBrowser::MarkOpened(const std::wstring& path) {
  opened_ = path;
  reached_ = path;
  std::wstring folder = FolderOf(path);
  if (folder != Folder() && LiesIn(pane_.root(), folder)) {
    pane_.SetCurrent(folder);
    ShowEntries(folder);
    return;
  }
  strip_.Mark(folder == Folder() ? NameOf(path) : std::wstring());
}

std::wstring CLibraryBrowser::Neighbour(int step) const {
  std::wstring folder = Folder();
  bool inside = FolderOf(reached_) == folder;
  std::wstring name = NameFrom(strip_.names(), inside ? NameOf(reached_) : std::wstring(), step);
  return name.empty() ? name : folder + L'\\' + name;
}

}  // namespace capture
