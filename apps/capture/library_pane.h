#pragma once
// The picture library's folders: a title with the number of pictures in the current folder, and the
// folder tree in a frame. Posts WM_FOLDER_CHOSEN to its parent.
#include <string>

#include "corvane/platform/drawing/buffer_dc.h"
#include "corvane/platform/framework/framework.h"
#include "corvane/trees/owner_drawn/tree_ctrl_ex2.h"

namespace capture {

class CLibraryPane : public corvane::CWnd {
 public:
  ~CLibraryPane() override { DestroyWindow(); }

  bool Open(corvane::CWnd* parent);
  // Loads the folders at and below the root (a full wide path); waits until all are read.
  void SetRoot(const std::wstring& root);
  const std::wstring& root() const { return root_; }
  // Selects the folder, as a click on it does.
  void SetCurrent(const std::wstring& folder);
  std::wstring Current() const;
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

 private:
  corvane::CRect tree_frame() const;
  bool is_drive() const { return root_.find(L'\\') == std::wstring::npos; }
  std::wstring in_tree(const std::wstring& path) const;  // as the tree names a path

  std::wstring root_;
  int count_ = 0;
  corvane::CTreeCtrlEx2 tree_;
  corvane::CBufferDC buffer_;
};

}  // namespace capture
