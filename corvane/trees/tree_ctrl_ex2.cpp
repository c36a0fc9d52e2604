#include "corvane/trees/tree_ctrl_ex2.h"

#include "corvane/platform/framework/paint_dc.h"
#include "corvane/platform/geometry.h"
#include "corvane/trees/tree_loading.h"

namespace corvane {
namespace {

constexpr wchar_t control_file[] = L"ui_control.xml";
constexpr int control_list = 1;
constexpr COLORREF background = RGB(255, 255, 255);

// Climbs to the nearest folder that exists, or to the first component.
CString existing_part(CString path) {
  while (!::PathFileExistsW(path)) {
    const int last = path.ReverseFind(L'\\');
    if (last < 0) break;
    path = path.Left(last);
  }
  return path;
}

}  // namespace

constexpr CRuntimeClass CTreeCtrlEx2::classCTreeCtrlEx2{"CTreeCtrlEx2", &CWnd::classCWnd};

CTreeCtrlEx2::CTreeCtrlEx2() : listing_(system_folder_listing()) {}

CTreeCtrlEx2::~CTreeCtrlEx2() { DestroyWindow(); }

const CRuntimeClass* CTreeCtrlEx2::GetRuntimeClass() const { return &classCTreeCtrlEx2; }

const MessageMap* CTreeCtrlEx2::GetMessageMap() const {
  static constexpr auto messages = MessageTable(
      On<WM_CREATE>(&CTreeCtrlEx2::OnCreate), On<WM_SIZE>(&CTreeCtrlEx2::OnSize),
      On<WM_DESTROY>(&CTreeCtrlEx2::OnDestroy), On<WM_PAINT>(&CTreeCtrlEx2::OnPaint),
      On<WM_ERASEBKGND>(&CTreeCtrlEx2::OnEraseBkgnd),
      On<WM_LBUTTONDOWN>(&CTreeCtrlEx2::OnLButtonDown),
      On<WM_LBUTTONUP>(&CTreeCtrlEx2::OnLButtonUp), On<WM_MOUSEMOVE>(&CTreeCtrlEx2::OnMouseMove),
      On<WM_LBUTTONDBLCLK>(&CTreeCtrlEx2::OnLButtonDblClk),
      On<WM_VSCROLL>(&CTreeCtrlEx2::OnVScroll), On<WM_MOUSEWHEEL>(&CTreeCtrlEx2::OnMouseWheel));
  static const MessageMap map = messages.Extending(CWnd::GetMessageMap());
  return &map;
}

int CTreeCtrlEx2::SetPath(const wchar_t* path, _NODE* parent) {
  return load_folders(model_, *listing_, path, parent) ? 1 : 0;
}

void CTreeCtrlEx2::SetFolderListing(std::unique_ptr<FolderListing> listing) {
  listing_ = listing ? std::move(listing) : system_folder_listing();
}

void CTreeCtrlEx2::SetCurPath(const wchar_t* path) {
  if (path) {
    model_.set_current_path(path);
  } else if (model_.current_path().IsEmpty()) {
    model_.set_current_path(model_.path_of(&model_.root()));
  } else {
    model_.set_current_path(existing_part(model_.current_path()));
  }
  Expand(model_.current_path());
  model_.highlight_current();
  NotifyParent();
  Repaint();
}

CString CTreeCtrlEx2::GetCurPath() const { return model_.current_path(); }

void CTreeCtrlEx2::ClearCurPath() { model_.set_current_path(CString()); }

void CTreeCtrlEx2::Expand(const wchar_t* path) {
  if (!path) return;
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
  if (!model_.empty()) Repaint();
  return 1;
}

int CTreeCtrlEx2::DelNode(_NODE* node) {
  if (!model_.remove(node)) return 0;
  if (!model_.empty()) Repaint();
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

void CTreeCtrlEx2::InitConfig() { skin_.LoadCtrlList(control_file, control_list); }

void CTreeCtrlEx2::LoadResources() { painter_.LoadImages(skin_); }

int CTreeCtrlEx2::OnCreate(LPCREATESTRUCT creation) {
  if (CWnd::OnCreate(creation) == -1) return -1;
  const auto watch = liveness_.watch();
  const auto gone = [&] { return watch.gone() || !m_hWnd; };
  ::SetWindowLongW(m_hWnd, GWL_EXSTYLE, static_cast<LONG>(GetExStyle() | WS_EX_ACCEPTFILES));
  if (gone()) return -1;
  ::SetWindowLongW(m_hWnd, GWL_STYLE, static_cast<LONG>(GetStyle() | WS_VSCROLL));
  if (gone()) return -1;
  ShowScrollBar(SB_VERT, FALSE);
  if (gone()) return -1;
  InitConfig();
  LoadResources();
  painter_.Init();
  return 0;
}

void CTreeCtrlEx2::OnDestroy() {
  const auto watch = liveness_.watch();
  CWnd::OnDestroy();
  if (watch.gone()) return;
  skin_.Release();
  painter_.DeleteImages();
}

BOOL CTreeCtrlEx2::OnEraseBkgnd(CDC* dc) {
  CRect client;
  GetClientRect(client);
  if (!buffer_.HasSizeOf(client)) {
    buffer_.CreateBufferDC(dc ? dc->GetSafeHdc() : nullptr, client);
    buffer_.SetBackColor(client, background);
  }
  return TRUE;
}

void CTreeCtrlEx2::OnPaint() {
  const auto watch = liveness_.watch();
  CPaintDC paint(this);
  CRect client;
  GetClientRect(client);
  if (watch.gone() || !buffer_.GetDC()) return;
  OnEraseBkgnd(&paint);  // the size may have changed without anything being erased
  buffer_.SetBackColor(client, background);
  DoDraw(buffer_, client);
  if (!watch.gone() && buffer_.HasSizeOf(client)) buffer_.Paste(paint, client, SRCCOPY);
}

void CTreeCtrlEx2::DoDraw(HDC dc, CRect rect) {
  if (model_.empty()) return;
  const LONG total = ListSort();
  const LONG height = clamp_coordinate(height_of(rect));
  const bool overflows = total > height;
  const auto watch = liveness_.watch();
  OpenVscroll(overflows, overflows ? total : 0, overflows ? height : 0);
  if (watch.gone() || model_.empty()) return;
  CRect clip;
  ::GetClipBox(dc, clip);
  const long long root_bottom = model_.root().row().bottom;
  if (root_bottom - ScrollPosition() > clip.top) DrawRow(dc, model_.root(), ScrollPosition());
  DrawItem(dc, &model_.root());
}

int CTreeCtrlEx2::DrawItem(HDC dc, _NODE* node) {
  if (!node || !node->expanded()) return 0;
  const int position = ScrollPosition();
  CRect clip;
  ::GetClipBox(dc, clip);
  const long long top = clip.top;
  const long long bottom = clip.bottom;
  for (const _NODE* below : layout_.rows_below(model_, *node, clamp_coordinate(top + position),
                                               clamp_coordinate(bottom + position))) {
    DrawRow(dc, *below, position);
  }
  return 1;
}

void CTreeCtrlEx2::DrawRow(HDC dc, const _NODE& node, int position) const {
  CRect row(node.row());
  row.top = clamp_coordinate(static_cast<long long>(row.top) - position);
  row.bottom = clamp_coordinate(static_cast<long long>(row.bottom) - position);
  painter_.Draw(dc, node, row, model_.is_path_of(model_.highlight_path(), node));
}

}  // namespace corvane
