#include "corvane/trees/owner_drawn/tree_ctrl_ex2.h"

#include <algorithm>
#include <string>
#include <vector>

#include "corvane/frame/window_lists.h"
#include "corvane/platform/framework/paint_dc.h"
#include "corvane/platform/geometry.h"
#include "corvane/trees/model/tree_loading.h"
#include "corvane/trees/shared/folder_path.h"
#include "corvane/trees/shared/tree_messages.h"

namespace corvane {
namespace {

// The path, or of those above it the longest that exists; its first component if none does. What
// lies below a folder that is missing is missing too, so not every one has to be asked for.
CString existing_part(const CString& path) {
  if (::PathFileExistsW(path)) return path;
  const std::wstring& whole = path.AsStdString();
  std::vector<std::size_t> ends;  // of the paths above it, the shortest first
  for (std::size_t at = whole.find(kPathSeparator); at != std::wstring::npos;
       at = whole.find(kPathSeparator, at + 1)) {
    ends.push_back(at);
  }
  if (ends.empty()) return path;
  const auto missing =
      std::partition_point(std::next(ends.begin()), ends.end(), [&whole](std::size_t end) {
        return ::PathFileExistsW(whole.substr(0, end).c_str()) != FALSE;
      });
  return CString(whole.substr(0, *std::prev(missing)));
}

}  // namespace

constexpr CRuntimeClass CTreeCtrlEx2::classCTreeCtrlEx2{"CTreeCtrlEx2", &CWnd::classCWnd};

CTreeCtrlEx2::CTreeCtrlEx2() : LibraryWindow(this, end_), listing_(system_folder_listing()) {}

const WindowDescription& CTreeCtrlEx2::description() const {
  static constexpr auto kMessages = MessageTable(
      On<WM_CREATE>(&CTreeCtrlEx2::OnCreate), On<WM_SIZE>(&CTreeCtrlEx2::OnSize),
      On<WM_DESTROY>(&CTreeCtrlEx2::OnDestroy), On<WM_PAINT>(&CTreeCtrlEx2::OnPaint),
      On<WM_ERASEBKGND>(&CTreeCtrlEx2::OnEraseBkgnd),
      On<WM_LBUTTONDOWN>(&CTreeCtrlEx2::OnLButtonDown),
      On<WM_LBUTTONUP>(&CTreeCtrlEx2::OnLButtonUp), On<WM_MOUSEMOVE>(&CTreeCtrlEx2::OnMouseMove),
      On<WM_LBUTTONDBLCLK>(&CTreeCtrlEx2::OnLButtonDblClk),
      On<WM_VSCROLL>(&CTreeCtrlEx2::OnVScroll), On<WM_MOUSEWHEEL>(&CTreeCtrlEx2::OnMouseWheel));
  static const WindowDescription description{
      classCTreeCtrlEx2, kMessages.extending(base_messages()), KeyFilter::to_parent};
  return description;
}

int CTreeCtrlEx2::SetPath(const wchar_t* path, _NODE* parent) {
  return load_folders(model_, *listing_, path, parent) ? 1 : 0;
}

void CTreeCtrlEx2::SetFolderListing(std::unique_ptr<FolderListing> listing) {
  listing_ = listing ? std::move(listing) : system_folder_listing();
}

void CTreeCtrlEx2::SetCurPath(const wchar_t* path) {
  if (path != nullptr) {
    model_.set_current_path(path);
  } else if (model_.current_path().IsEmpty()) {
    model_.set_current_path(model_.path_of(&model_.root()));
  } else {
    model_.set_current_path(existing_part(model_.current_path()));
  }
  Expand(model_.current_path());
  model_.highlight_current();
  post_tree_select(m_hWnd);
  repaint();
}

CString CTreeCtrlEx2::GetCurPath() const { return model_.current_path(); }

void CTreeCtrlEx2::ClearCurPath() { model_.set_current_path(CString()); }

void CTreeCtrlEx2::Expand(const wchar_t* path) {
  if (path == nullptr) return;
  if (_NODE* node = model_.find(path)) model_.expand_with_ancestors(*node);
}

_NODE* CTreeCtrlEx2::AddChildNode(const wchar_t* name, _NODE* parent) {
  return model_.add_child(name, parent);
}

_NODE* CTreeCtrlEx2::FindNode(const wchar_t* path, _NODE* start) {
  return model_.find(path, start);
}

int CTreeCtrlEx2::DelNode(const wchar_t* path) {
  if (!model_.remove(path)) return 0;
  if (!model_.empty()) repaint();
  return 1;
}

int CTreeCtrlEx2::DelNode(_NODE* node) {
  if (!model_.remove(node)) return 0;
  if (!model_.empty()) repaint();
  return 1;
}

int CTreeCtrlEx2::DelAllNode() {
  model_.remove_all();
  return 1;
}

CString CTreeCtrlEx2::GetNodePath(_NODE* node) const { return model_.path_of(node); }

LONG CTreeCtrlEx2::ListSort() {
  CRect client;
  GetClientRect(client);
  return layout_.arrange(model_, client.right);
}

int CTreeCtrlEx2::ListSort(_NODE* node, int width, int row) {
  return layout_.arrange_below(node, width, row);
}

void CTreeCtrlEx2::InitConfig() { skin_.Load(kFolderTreeList); }

void CTreeCtrlEx2::LoadResources() { images_.load(skin_); }

int CTreeCtrlEx2::OnCreate(LPCREATESTRUCT creation) {
  if (CWnd::OnCreate(creation) == -1) return -1;
  const WindowWatch watch(*this);
  ::SetWindowLongW(m_hWnd, GWL_EXSTYLE, static_cast<LONG>(GetExStyle() | WS_EX_ACCEPTFILES));
  if (watch.window_gone()) return -1;
  ::SetWindowLongW(m_hWnd, GWL_STYLE, static_cast<LONG>(GetStyle() | WS_VSCROLL));
  if (watch.window_gone()) return -1;
  ShowScrollBar(SB_VERT, FALSE);
  if (watch.window_gone()) return -1;
  InitConfig();
  LoadResources();
  painter_.init();
  return 0;
}

void CTreeCtrlEx2::OnDestroy() {
  const WindowWatch watch(*this);
  CWnd::OnDestroy();
  if (watch.object_gone()) return;
  skin_.Release();
  images_.release();
}

// A smaller window uncovers nothing to paint, but the rows and the bar depend on its size.
void CTreeCtrlEx2::OnSize(UINT kind, int width, int height) {
  const WindowWatch watch(*this);
  CWnd::OnSize(kind, width, height);
  if (!watch.window_gone()) Invalidate(FALSE);
}

BOOL CTreeCtrlEx2::OnEraseBkgnd(CDC* dc) {
  buffer_.fit(*this, dc);
  return TRUE;
}

void CTreeCtrlEx2::OnPaint() {
  const WindowWatch watch(*this);
  CPaintDC paint(this);
  if (watch.object_gone()) return;
  buffer_.draw_now(*this, paint, [this](HDC dc, CRect client) { DoDraw(dc, client); });
}

void CTreeCtrlEx2::DoDraw(HDC dc, CRect rect) {
  if (model_.empty()) return;
  const LONG total = ListSort();
  const LONG height = clamp_coordinate(height_of(rect));
  const bool overflows = total > height;
  const WindowWatch watch(*this);
  OpenVscroll(static_cast<int>(overflows), overflows ? total : 0, overflows ? height : 0);
  if (watch.object_gone() || model_.empty()) return;
  painter_.draw_root(dc, model_, scroll_position());
  DrawItem(dc, &model_.root());
}

int CTreeCtrlEx2::DrawItem(HDC dc, _NODE* node) {
  if (node == nullptr || !node->expanded()) return 0;
  painter_.draw_below(dc, model_, layout_, *node, scroll_position());
  return 1;
}

void CTreeCtrlEx2::OpenVscroll(int show, int maximum, int page) {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_RANGE | SIF_PAGE;
  info.nMax = maximum;
  info.nPage = static_cast<UINT>(page);
  const WindowWatch watch(*this);
  SetScrollInfo(SB_VERT, &info, TRUE);
  if (!watch.object_gone()) ShowScrollBar(SB_VERT, show != 0 ? TRUE : FALSE);
}

int CTreeCtrlEx2::scroll_position() const { return GetScrollPos(SB_VERT); }

ScrollState CTreeCtrlEx2::get_scroll_state() const {
  SCROLLINFO info{};
  if (!GetScrollInfo(SB_VERT, &info, SIF_ALL)) return {};
  return {info.nMin, GetScrollLimit(SB_VERT), clamp_coordinate(info.nPage), info.nPos};
}

void CTreeCtrlEx2::scroll_to(int position) {
  SetScrollPos(SB_VERT, position, TRUE);
  repaint();
}

void CTreeCtrlEx2::OnVScroll(UINT code, UINT position, CScrollBar* bar) {
  scroll_to(scrolled_by_bar(code, position, get_scroll_state()));
  CWnd::OnVScroll(code, position, bar);
}

BOOL CTreeCtrlEx2::OnMouseWheel(UINT flags, short distance, CPoint screen_point) {
  const ScrollState state = get_scroll_state();
  if (state.limit > state.minimum) scroll_to(scrolled_by_wheel(distance, state));
  return CWnd::OnMouseWheel(flags, distance, screen_point);
}

POINT CTreeCtrlEx2::content_point(CPoint point) const {
  return {point.x, clamp_coordinate(static_cast<long long>(point.y) + scroll_position())};
}

_NODE* CTreeCtrlEx2::HitTest(CPoint point) { return layout_.node_at(model_, content_point(point)); }

_NODE* CTreeCtrlEx2::HitTest(_NODE* node, CPoint point) {
  return layout_.node_below_at(model_, node, content_point(point));
}

_NODE* CTreeCtrlEx2::make_current_at(CPoint point) {
  _NODE* node = HitTest(point);
  if (node == nullptr) return nullptr;
  model_.set_current_path(model_.path_of(node));
  model_.highlight_current();
  return node;
}

int CTreeCtrlEx2::ClickNode(CPoint point, int mode) {
  _NODE* node = make_current_at(point);
  if (node == nullptr) return 0;
  if (mode == click_expands) model_.set_expanded(*node, true);
  if (mode == click_collapses) model_.set_expanded(*node, false);
  if (mode == click_toggles) model_.set_expanded(*node, !node->expanded());
  return 1;
}

void CTreeCtrlEx2::OnLButtonUp(UINT flags, CPoint point) {
  if (make_current_at(point) != nullptr) {
    post_tree_select(m_hWnd);
    repaint();
  }
  CWnd::OnLButtonUp(flags, point);
}

void CTreeCtrlEx2::OnLButtonDblClk(UINT flags, CPoint point) {
  if (ClickNode(point, click_toggles)) repaint();
  CWnd::OnLButtonDblClk(flags, point);
}

BOOL CTreeCtrlEx2::PreTranslateMessage(MSG* message) {
  if (message != nullptr && is_mouse_hook_message(message->message)) return TRUE;
  return LibraryWindow::PreTranslateMessage(message);
}

void CTreeCtrlEx2::repaint() {
  if (m_hWnd != nullptr) InvalidateRect(nullptr, FALSE);
}

}  // namespace corvane
