#pragma once
// The owner-drawn tree of a picture library's folders: a child window that loads the folders below
// a root and paints every row itself. The host creates it (class with CS_DBLCLKS) as a child of its
// own window, which gets WM_TREE_SELECT when the current folder was chosen; GetCurPath tells which.
//
// Paths are full wide paths with '\' between their components; a node's path is the base path, the
// root's name and the names below it. Names are compared exactly. Points are client coordinates.
// Nodes belong to the tree; a pointer is valid until that node, an ancestor or the whole tree is
// removed. Everything belongs to the user-interface thread.
#include <memory>

#include "corvane/frame/layer_messages.h"
#include "corvane/frame/library_window.h"
#include "corvane/platform/base_services/folder_listing.h"
#include "corvane/skin/xml_list_mgr.h"
#include "corvane/trees/model/tree_model.h"
#include "corvane/trees/owner_drawn/tree_layout.h"
#include "corvane/trees/owner_drawn/tree_row_painter.h"
#include "corvane/trees/owner_drawn/tree_scrolling.h"
#include "corvane/trees/shared/folder_images.h"
#include "corvane/trees/shared/tree_buffer.h"

namespace corvane {

class CTreeCtrlEx2 : public LibraryWindow<CWnd> {
 public:
  CTreeCtrlEx2();

  static const CRuntimeClass classCTreeCtrlEx2;
  BOOL PreTranslateMessage(MSG* message) override;

  // --- Folders from the disk
  // Loads a folder and everything below it: as the root (null parent; the tree starts over), or
  // into `parent`, where existing nodes are kept and missing ones added. Waits until all is read.
  // 1, or 0 when the folder cannot be listed; its node is in the tree all the same. 0 and nothing
  // changes for a null path. A link that leads back to a folder above it stays without children. An
  // empty path names the root of the file system, under an empty name.
  int SetPath(const wchar_t* path, _NODE* parent);
  // From now on SetPath reads from `listing` instead of the system's folders; null: from these
  // again. A host can so choose the order of siblings, or leave folders out. Not during SetPath.
  void SetFolderListing(std::unique_ptr<FolderListing> listing);
  // Makes the path the current and highlighted one, expands its node and all above it, posts
  // WM_TREE_SELECT and repaints; whether the folder exists does not matter. Null: the current
  // path, or the nearest folder above it that exists; the root when there is none yet.
  void SetCurPath(const wchar_t* path);
  CString GetCurPath() const;
  void ClearCurPath();
  // Expands the node of a path and all above it. The caller repaints.
  void Expand(const wchar_t* path);

  // --- Nodes. None of these reads the disk.
  // The parent's child of that name, added as the last one and collapsed when there is none; a null
  // parent: the tree starts over with that root, expanded. Null for a null name.
  _NODE* AddChildNode(const wchar_t* name, _NODE* parent);
  // The node of a full path; a path that does not begin with the base path begins with the name of
  // `start` (null: the root). `start` itself for a null or empty path; null: there is none, or the
  // base path is empty.
  _NODE* FindNode(const wchar_t* path, _NODE* start);
  // Remove a node with all below it and repaint; 1, or 0 when there is none. The root: as
  // DelAllNode, which leaves repainting to the caller. By path, the current path also becomes the
  // parent's when it contains it anywhere, and is highlighted.
  int DelNode(const wchar_t* path);
  int DelNode(_NODE* node);
  int DelAllNode();                        // 1; the paths stay
  CString GetNodePath(_NODE* node) const;  // null: the base path

  // --- Rows
  // Lay out the visible rows, 30 pixels each: all (the result is their height in pixels, 0 for an
  // empty tree), or those below one node from a row number on (the result is the next free number).
  LONG ListSort();
  int ListSort(_NODE* node, int width, int row);
  // The node whose row, as last laid out, holds the point; null: none. The second looks only at
  // the visible nodes below `node`.
  _NODE* HitTest(CPoint point);
  _NODE* HitTest(_NODE* node, CPoint point);
  // Makes the node at the point current and highlighted as a click does, but neither posts nor
  // repaints. 1, or 0 when no node is there.
  enum ClickMode { click_collapses = 0, click_expands = 1, click_toggles = 2 };  // others: neither
  int ClickNode(CPoint point, int mode);

  // --- Drawing
  // Lays out all rows, sets the scroll bar for the height of `rect` (the client rectangle) and
  // draws the rows. Nothing happens for an empty tree.
  void DoDraw(HDC dc, CRect rect);
  // Draws the visible rows below a node; 0 when it is null or collapsed, else 1.
  int DrawItem(HDC dc, _NODE* node);
  // The vertical scroll bar: positions 0 to `maximum` in pages of `page` pixels; non-zero `show`
  // shows it. The next drawing sets it again.
  void OpenVscroll(int show, int maximum, int page);
  // Whether a right click may show a menu; there is none yet.
  void OpenRButtonMenu(int enable) { menu_enabled_ = enable; }

  // --- Skin: list 1 of ui_control.xml, control 1 (glyphs) and control 2 (folders), each with a
  // normal and a selected image. What is missing is not drawn.
  void InitConfig();
  void LoadResources();

  // --- Handlers
  int OnCreate(LPCREATESTRUCT creation);
  void OnDestroy();
  void OnPaint();
  BOOL OnEraseBkgnd(CDC* dc);
  void OnSize(UINT kind, int width, int height);
  void OnVScroll(UINT code, UINT position, CScrollBar* bar);
  BOOL OnMouseWheel(UINT flags, short distance, CPoint screen_point);
  void OnLButtonUp(UINT flags, CPoint point);
  void OnLButtonDblClk(UINT flags, CPoint point);
  using CWnd::OnLButtonDown;
  using CWnd::OnMouseMove;

 private:
  const WindowDescription& description() const override;
  int scroll_position() const;
  POINT content_point(CPoint point) const;
  ScrollState get_scroll_state() const;
  void scroll_to(int position);
  _NODE* make_current_at(CPoint point);
  void repaint();

  TreeModel model_;
  TreeLayout layout_;
  std::unique_ptr<FolderListing> listing_;
  CXmlListMgr skin_;
  TreeBuffer buffer_;
  FolderImages images_;
  TreeRowPainter painter_{images_};
  int menu_enabled_ = 0;
  WindowEnd end_{*this};  // last
};

}  // namespace corvane
