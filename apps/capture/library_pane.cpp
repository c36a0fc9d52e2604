#include "apps/capture/library_pane.h"

#include "apps/capture/capture_messages.h"
#include "apps/capture/fill.h"
#include "apps/capture/palette.h"
#include "apps/capture/picture_folder.h"
#include "apps/capture/sorted_listing.h"
#include "apps/capture/texts.h"
#include "corvane/frame/layer_messages.h"
#include "corvane/platform/drawing/gdi_dc.h"

namespace capture {
namespace {

using namespace corvane;

constexpr int kTitleHeight = 40;
constexpr int kMargin = 10;
constexpr int kTreeId = 1;
// The tree finds folders only below one that holds its root; the long form of a drive has one.
constexpr std::wstring_view kBeforeDrive = L"\\\\?\\";

}  // namespace

const MessageMap* CLibraryPane::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(
      On<WM_CREATE>(&CLibraryPane::OnCreate), On<WM_ERASEBKGND>(&CLibraryPane::OnEraseBkgnd),
      On<WM_PAINT>(&CLibraryPane::OnPaint), On<WM_SIZE>(&CLibraryPane::OnSize),
      On<WM_KEYDOWN>(&CLibraryPane::OnKeyDown),
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
  tree_.SetFolderListing(sorted_listing());
  tree_.SetPath(in_tree(root).c_str(), nullptr);
  tree_.Invalidate(FALSE);
}

void CLibraryPane::SetCurrent(const std::wstring& folder) {
  tree_.SetCurPath(in_tree(folder).c_str());
}

std::wstring CLibraryPane::Current() const {
  const std::wstring path = tree_.GetCurPath().AsStdString();
  const bool is_long = is_drive() && path.starts_with(kBeforeDrive);
  return is_long ? path.substr(kBeforeDrive.size()) : path;
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
  frame.DeflateRect(kMargin, kTitleHeight, kMargin, kMargin);
  return frame;
}

BOOL CLibraryPane::OnEraseBkgnd(CDC*) { return TRUE; }

void CLibraryPane::OnPaint() {
  const CPaintDC dc(this);
  CRect client;
  GetClientRect(client);
  if (!buffer_.HasSizeOf(client)) return;
  fill_with(buffer_, client, kPanelColor);
  fill_with(buffer_, CRect(client.right - 1, client.top, client.right, client.bottom),
            kPanelEdgeColor);
  frame_with(buffer_, tree_frame(), kPanelEdgeColor);
  const CRect title(kMargin + 4, 0, client.right - kMargin - 4, kTitleHeight);
  const LOGFONTW bold = ui_font(17, FW_BOLD);
  CGdiDC().DrawTextW(buffer_, L"图库", &bold, title, kTextArgb, DT_VCENTER | DT_SINGLELINE);
  CString count;
  count.Format(L"%d 张图片", count_);
  const LOGFONTW font = ui_font(14);
  CGdiDC().DrawTextW(buffer_, count, &font, title, kQuietTextArgb,
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

LRESULT CLibraryPane::OnTreeSelect(WPARAM, LPARAM) {
  ::PostMessageW(::GetParent(m_hWnd), WM_FOLDER_CHOSEN, 0, 0);
  return 0;
}

}  // namespace capture
