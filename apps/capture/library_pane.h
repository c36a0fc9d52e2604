#pragma once
// The picture library's folders: a title with the number of pictures in the current folder, and the
// folder tree in a frame. Posts WM_FOLDER_CHOSEN to its parent; its right edge can be dragged.
#include <memory>
#include <optional>
#include <string>

#include "apps/capture/folder_loading.h"
#include "apps/capture/look.h"
#include "corvane/platform/drawing/buffer_dc.h"
#include "corvane/platform/framework/framework.h"
#include "corvane/trees/owner_drawn/tree_ctrl_ex2.h"

namespace capture {

class CLibraryPane : public corvane::CWnd {
 public:
  explicit CLibraryPane(const CLook& look) : look_(look) {}  // which outlives it
  ~CLibraryPane() override { DestroyWindow(); }

  bool Open(corvane::CWnd* parent);
  // Shows the root (a full wide path) and the folders in it; those below come with ShowFolders.
  void SetRoot(const std::wstring& root);
  const std::wstring& root() const { return root_; }
  std::wstring RootInTree() const { return in_tree(root_); }  // as the tree names it
  // What read_folders found below RootInTree() comes into the tree, piece by piece. Null: nothing
  // more comes.
  void ShowFolders(std::shared_ptr<const corvane::TreeModel> folders);
  // Selects the folder, as a click on it does.
  void SetCurrent(const std::wstring& folder);
  std::wstring Current() const;
  // Makes the folder in the row above (-1) or below (1) the current one, as a click does, and
  // brings it into view.
  void SelectNeighbour(int step);
  // Shows or hides the folders in the current one.
  void OpenCurrent(bool open);
  // When the current folder has vanished: takes it out of the tree and selects the nearest folder
  // above it that exists.
  void LeaveVanishedFolder();
  void SetCount(int pictures);

  corvane::CTreeCtrlEx2& tree() { return tree_; }

 protected:
  const corvane::MessageMap* GetMessageMap() const override;
  int OnCreate(LPCREATESTRUCT creation);
  BOOL OnEraseBkgnd(corvane::CDC* dc);
  void OnPaint();
  void OnSize(UINT kind, int width, int height);
  void OnKeyDown(UINT key, UINT repeats, UINT flags);
  LRESULT OnTreeSelect(WPARAM, LPARAM);
  void OnTimer(UINT_PTR id);
  BOOL OnSetCursor(corvane::CWnd* window, UINT hit_code, UINT mouse_message);
  void OnLButtonDown(UINT flags, corvane::CPoint point);
  void OnMouseMove(UINT flags, corvane::CPoint point);
  void OnLButtonUp(UINT flags, corvane::CPoint point);
  void OnCaptureChanged(corvane::CWnd* new_owner);

 private:
  bool is_on_edge(POINT point) const;
  void transfer();
  corvane::CRect tree_frame() const;
  bool is_drive() const { return root_.find(L'\\') == std::wstring::npos; }
  corvane::CRect row_of_current();  // in the tree's client coordinates; empty: it has none
  std::wstring in_tree(const std::wstring& path) const;  // as the tree names a path

  int title_height() const { return static_cast<int>(look_.size(Measure::library_title).cy); }

  const CLook& look_;
  std::wstring root_;
  int count_ = 0;
  bool loading_ = false;
  std::optional<int> grip_;  // while the edge is dragged: from the pointer to the edge, pixels
  CFolderTransfer transfer_;
  corvane::CTreeCtrlEx2 tree_;
  corvane::CBufferDC buffer_;
};

}  // namespace capture
