// The tree's scroll bar, mouse and keys.
#include "corvane/layers/frame/layer_key_filter.h"
#include "corvane/platform/geometry.h"
#include "corvane/trees/tree_ctrl_ex2.h"

namespace corvane {
namespace {

bool is_mouse_hook_message(UINT message) {
  constexpr UINT first_registered = 0xC000;
  return message >= first_registered &&
         message == ::RegisterWindowMessageW(hook_mouse_down_message_name);
}

}  // namespace

void CTreeCtrlEx2::OpenVscroll(int show, int maximum, int page) {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_RANGE | SIF_PAGE;
  info.nMax = maximum;
  info.nPage = static_cast<UINT>(page);
  const auto watch = liveness_.watch();
  SetScrollInfo(SB_VERT, &info, TRUE);
  if (!watch.gone()) ShowScrollBar(SB_VERT, show != 0);
}

int CTreeCtrlEx2::ScrollPosition() const { return GetScrollPos(SB_VERT); }

ScrollState CTreeCtrlEx2::GetScrollState() const {
  SCROLLINFO info{};
  if (!GetScrollInfo(SB_VERT, &info, SIF_ALL)) return {};
  return {info.nMin, GetScrollLimit(SB_VERT), clamp_coordinate(info.nPage), info.nPos};
}

void CTreeCtrlEx2::ScrollTo(int position) {
  SetScrollPos(SB_VERT, position, TRUE);
  Repaint();
}

void CTreeCtrlEx2::OnVScroll(UINT code, UINT position, CScrollBar* bar) {
  ScrollTo(scrolled_by_bar(code, position, GetScrollState()));
  CWnd::OnVScroll(code, position, bar);
}

BOOL CTreeCtrlEx2::OnMouseWheel(UINT flags, short distance, CPoint screen_point) {
  const ScrollState state = GetScrollState();
  if (state.limit > state.minimum) ScrollTo(scrolled_by_wheel(distance, state));
  return CWnd::OnMouseWheel(flags, distance, screen_point);
}

POINT CTreeCtrlEx2::ContentPoint(CPoint point) const {
  return {point.x, clamp_coordinate(static_cast<long long>(point.y) + ScrollPosition())};
}

_NODE* CTreeCtrlEx2::HitTest(CPoint point) { return layout_.node_at(model_, ContentPoint(point)); }

_NODE* CTreeCtrlEx2::HitTest(_NODE* node, CPoint point) {
  return layout_.node_below_at(model_, node, ContentPoint(point));
}

_NODE* CTreeCtrlEx2::MakeCurrentAt(CPoint point) {
  _NODE* node = HitTest(point);
  if (!node) return nullptr;
  model_.set_current_path(model_.path_of(node));
  model_.highlight_current();
  return node;
}

int CTreeCtrlEx2::ClickNode(CPoint point, int mode) {
  _NODE* node = MakeCurrentAt(point);
  if (!node) return 0;
  if (mode == click_expands) model_.set_expanded(*node, true);
  if (mode == click_collapses) model_.set_expanded(*node, false);
  if (mode == click_toggles) model_.set_expanded(*node, !node->expanded());
  return 1;
}

void CTreeCtrlEx2::OnLButtonUp(UINT flags, CPoint point) {
  if (MakeCurrentAt(point)) {
    NotifyParent();
    Repaint();
  }
  CWnd::OnLButtonUp(flags, point);
}

void CTreeCtrlEx2::OnLButtonDblClk(UINT flags, CPoint point) {
  if (ClickNode(point, click_toggles)) Repaint();
  CWnd::OnLButtonDblClk(flags, point);
}

BOOL CTreeCtrlEx2::PreTranslateMessage(MSG* message) {
  if (message && is_mouse_hook_message(message->message)) return TRUE;
  if (filter_layer_key(KeyFilter::to_parent, m_hWnd, message)) return TRUE;
  return CWnd::PreTranslateMessage(message);
}

void CTreeCtrlEx2::NotifyParent() const {
  if (const HWND parent = ::GetParent(m_hWnd)) ::PostMessageW(parent, WM_TREE_SELECT, 0, 0);
}

void CTreeCtrlEx2::Repaint() {
  if (m_hWnd) InvalidateRect(nullptr, FALSE);
}

}  // namespace corvane
