#pragma once
// The picture library: the pane with its folders and the strip with the current folder's pictures,
// kept in step with each other and with the disk. All paths are full wide paths.
#include <string>

#include "apps/capture/library_pane.h"
#include "apps/capture/picture_folder.h"
#include "apps/capture/picture_strip.h"

namespace capture {

class CLibraryBrowser {
 public:
  explicit CLibraryBrowser(const CLook& look) : look_(look), pane_(look), strip_(look) {}
  bool Create(corvane::CWnd* parent);
  void Place(const RECT& pane, const RECT& strip);  // the parent's client coordinates
  void Show(bool pane, bool strip);

  // Shows the library and selects a folder of it (the root when it does not lie in the library).
  void Load(const std::wstring& root, const std::wstring& folder);
  void SelectFolder(const std::wstring& folder);
  // The current folder; empty when the whole library is gone.
  std::wstring Folder() const;
  // When the current folder has vanished, the nearest folder above it becomes the current one. What
  // the user should know of that, else empty.
  corvane::CString LeaveVanishedFolder();
  // The same, and lists the current folder anew.
  corvane::CString Refresh();
  // Marks the picture as the opened one and selects its folder when that lies in the library.
  void MarkOpened(const std::wstring& path);
  // The neighbours are this one's from now on.
  void MarkReached(const std::wstring& path) { reached_ = path; }
  void ScrollToNew(const std::wstring& name) { strip_.ScrollToNew(name); }
  // The picture of the current folder that is `step` further than the last one that was opened or
  // could not be; empty: none.
  std::wstring Neighbour(int step) const;
  std::wstring ClickedPicture() const { return path_in(Folder(), strip_.ClickedName()); }

  CLibraryPane& pane() { return pane_; }
  const CPictureStrip& strip() const { return strip_; }

 private:
  void show_entries(const std::wstring& folder);

  const CLook& look_;
  CLibraryPane pane_;
  CPictureStrip strip_;
  std::wstring opened_;   // path
  std::wstring reached_;  // path: opened, being opened, or unreadable
};

}  // namespace capture
