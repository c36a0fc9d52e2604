#include "apps/capture/library_pane.h"

#include <algorithm>

#include "apps/capture/capture_messages.h"
#include "apps/capture/fill.h"
#include "apps/capture/picture_folder.h"
#include "corvane/frame/layer_messages.h"
#include "corvane/platform/drawing/gdi_dc.h"

namespace capture {
namespace {

using namespace corvane;

constexpr int kMargin = 10;
constexpr int kTreeId = 1;
constexpr UINT_PTR kTransferTimer = 1;
constexpr int kNodesAtOnce = 2000;  // less than a frame's time
// The tree finds folders only below one that holds its root; the long form of a drive has one.
constexpr std::wstring_view kBeforeDrive = L"\\\\?\\";

}  // namespace

const MessageMap* CLibraryPane::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(
      On<WM_CREATE>(&CLibraryPane::OnCreate), On<WM_ERASEBKGND>(&CLibraryPane::OnEraseBkgnd),
      On<WM_PAINT>(&CLibraryPane::OnPaint), On<WM_SIZE>(&CLibraryPane::OnSize),
      On<WM_KEYDOWN>(&CLibraryPane::OnKeyDown), On<WM_TIMER>(&CLibraryPane::OnTimer),
      On<WM_SETCURSOR>(&CLibraryPane::OnSetCursor),
      On<WM_LBUTTONDOWN>(&CLibraryPane::OnLButtonDown),
      On<WM_MOUSEMOVE>(&CLibraryPane::OnMouseMove), On<WM_LBUTTONUP>(&CLibraryPane::OnLButtonUp),
      On<WM_CAPTURECHANGED>(&CLibraryPane::OnCaptureChanged),
      OnMessage<WM_TREE_SELECT>(&CLibraryPane::OnTreeSelect));
  static const MessageMap map = kMessages.extending(CWnd::GetMessageMap());
  return &map;
}

bool CLibraryPane::Open(CWnd* parent) {
  return Create(nullptr, L"library", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(0, 0, 0, 0),
                parent, 0);
}

void CLibraryPane::SetRoot(const std::wstring& root) {
  root_ = root;
  tree_.SetFolderListing(shallow_listing());
  tree_.SetPath(in_tree(root).c_str(), nullptr);
  tree_.Invalidate(FALSE);
  loading_ = true;
  Invalidate(FALSE);
}

void CLibraryPane::ShowFolders(std::shared_ptr<const TreeModel> folders) {
  loading_ = folders != nullptr;
  Invalidate(FALSE);
  if (folders == nullptr) return;
  transfer_ = CFolderTransfer(std::move(folders), tree_);
  transfer();
}

void CLibraryPane::transfer() {
  loading_ = transfer_.Continue(tree_, kNodesAtOnce);
  if (loading_) {
    SetTimer(kTransferTimer, USER_TIMER_MINIMUM);
  } else {
    KillTimer(kTransferTimer);
    transfer_ = {};
    tree_.Expand(tree_.GetCurPath());
    Invalidate(FALSE);
  }
  tree_.Invalidate(FALSE);
}

void CLibraryPane::OnTimer(UINT_PTR id) {
  if (id != kTransferTimer) return CWnd::OnTimer(id);
  transfer();
}

void CLibraryPane::SetCurrent(const std::wstring& folder) {
  tree_.SetCurPath(in_tree(folder).c_str());
}

std::wstring CLibraryPane::Current() const {
  const std::wstring path = tree_.GetCurPath().AsStdString();
  const bool is_long = is_drive() && path.starts_with(kBeforeDrive);
  return is_long ? path.substr(kBeforeDrive.size()) : path;
}

CRect CLibraryPane::row_of_current() {
  const _NODE* node = tree_.FindNode(tree_.GetCurPath(), nullptr);
  if (tree_.ListSort() == 0 || node == nullptr) return {};
  const CRect row(row_in_client(*node, tree_.GetScrollPos(SB_VERT)));
  return tree_.HitTest(row.CenterPoint()) == node ? row : CRect();
}

void CLibraryPane::SelectNeighbour(int step) {
  CRect row = row_of_current();
  if (row.IsRectEmpty()) return;
  row.OffsetRect(0, step * kTreeRowHeight);
  constexpr int kAsItStands = -1;
  if (!tree_.ClickNode(row.CenterPoint(), kAsItStands)) return;
  CRect client;
  tree_.GetClientRect(client);
  const int beyond = std::min<int>(row.top, 0) + std::max<int>(row.bottom - client.bottom, 0);
  tree_.SetScrollPos(SB_VERT, tree_.GetScrollPos(SB_VERT) + beyond, TRUE);
  tree_.Invalidate(FALSE);
  ::PostMessageW(::GetParent(m_hWnd), WM_FOLDER_CHOSEN, 0, 0);
}

void CLibraryPane::OpenCurrent(bool open) {
  const CRect row = row_of_current();
  if (row.IsRectEmpty()) return;
  const auto mode = open ? CTreeCtrlEx2::click_expands : CTreeCtrlEx2::click_collapses;
  tree_.ClickNode(row.CenterPoint(), mode);
  tree_.Invalidate(FALSE);
}

std::wstring CLibraryPane::in_tree(const std::wstring& path) const {
  return is_drive() ? std::wstring(kBeforeDrive) + path : path;
}

void CLibraryPane::LeaveVanishedFolder() {
  const std::wstring vanished = Current();
  std::wstring left = vanished;
  while (!left.empty() && !folder_exists(left)) left = folder_of(left);
  SetCurrent(left);
  if (vanished == left || !lies_in(left, vanished)) return;
  const std::size_t end = vanished.find(L'\\', left.size() + 1);
  if (loading_) return;  // nodes must stay until all are there
  tree_.DelNode(in_tree(vanished.substr(0, end)).c_str());
}

void CLibraryPane::SetCount(int pictures) {
  if (count_ == pictures) return;
  count_ = pictures;
  Invalidate(FALSE);
}

int CLibraryPane::OnCreate(LPCREATESTRUCT creation) {
  if (CWnd::OnCreate(creation) == -1) return -1;
  const bool created =
      tree_.Create(nullptr, L"folders", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, kTreeId);
  return created ? 0 : -1;
}

CRect CLibraryPane::tree_frame() const {
  CRect frame;
  GetClientRect(frame);
  frame.DeflateRect(kMargin, title_height(), kMargin, kMargin);
  return frame;
}

BOOL CLibraryPane::OnEraseBkgnd(CDC*) { return TRUE; }

void CLibraryPane::OnPaint() {
  const CPaintDC dc(this);
  CRect client;
  GetClientRect(client);
  if (!buffer_.HasSizeOf(client)) return;
  fill_with(buffer_, client, look_.color(Shade::panel));
  fill_with(buffer_, CRect(client.right - 1, client.top, client.right, client.bottom),
            look_.color(Shade::edge));
  frame_with(buffer_, tree_frame(), look_.color(Shade::edge));
  const CRect title(kMargin + 4, 0, client.right - kMargin - 4, title_height());
  const LOGFONTW bold = look_.font(Text::library);
  CGdiDC().DrawTextW(buffer_, look_.text(loading_ ? Text::library_loading : Text::library), &bold,
                     title, look_.argb(Shade::text), DT_VCENTER | DT_SINGLELINE);
  const CString count = look_.text(Text::picture_count, {std::to_wstring(count_).c_str()});
  const LOGFONTW font = look_.font(Text::picture_count);
  CGdiDC().DrawTextW(buffer_, count, &font, title, look_.argb(Shade::quiet_text),
                     DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
  buffer_.Paste(dc, client);
}

void CLibraryPane::OnSize(UINT kind, int width, int height) {
  CWnd::OnSize(kind, width, height);
  const CRect client(0, 0, width, height);
  if (!client.IsRectEmpty()) buffer_.CreateBufferDC(nullptr, client);
  CRect tree = tree_frame();
  tree.DeflateRect(1, 1);
  if (tree_.GetSafeHwnd() != nullptr && !tree.IsRectEmpty()) {
    tree_.MoveWindow(tree);
    tree_.Invalidate(FALSE);  // all of it: its rows and its bar depend on its size
  }
  Invalidate(FALSE);
}

void CLibraryPane::OnKeyDown(UINT key, UINT, UINT) {
  const MSG* message = GetCurrentMessage();
  if (key == VK_ESCAPE && message != nullptr) {
    ::PostMessageW(::GetParent(m_hWnd), WM_KEYDOWN, message->wParam, message->lParam);
    return;
  }
  Default();
}

bool CLibraryPane::is_on_edge(POINT point) const {
  CRect client;
  GetClientRect(client);
  return point.x >= client.right - kMargin;
}

BOOL CLibraryPane::OnSetCursor(CWnd* window, UINT hit_code, UINT mouse_message) {
  CPoint point;
  ::GetCursorPos(&point);
  ScreenToClient(&point);
  if (window != this || !is_on_edge(point)) {
    return CWnd::OnSetCursor(window, hit_code, mouse_message);
  }
  ::SetCursor(::LoadCursorW(nullptr, IDC_SIZEWE));
  return TRUE;
}

void CLibraryPane::OnLButtonDown(UINT, CPoint point) {
  if (!is_on_edge(point)) return;
  CRect client;
  GetClientRect(client);
  grip_ = client.right - point.x;
  SetCapture();
}

void CLibraryPane::OnMouseMove(UINT, CPoint point) {
  if (!grip_) return;
  const int width = std::max<int>(point.x + *grip_, 1);
  ::SendMessageW(::GetParent(m_hWnd), WM_LIBRARY_DRAGGED, static_cast<WPARAM>(width), 0);
}

void CLibraryPane::OnLButtonUp(UINT, CPoint) {
  if (grip_) ::ReleaseCapture();
}

void CLibraryPane::OnCaptureChanged(CWnd*) { grip_.reset(); }

LRESULT CLibraryPane::OnTreeSelect(WPARAM, LPARAM) {
  ::PostMessageW(::GetParent(m_hWnd), WM_FOLDER_CHOSEN, 0, 0);
  return 0;
}

}  // namespace capture
