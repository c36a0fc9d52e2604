#include "corvane/layers/crop/cut_bg_layer.h"

#include "corvane/frame/overlay_class.h"
#include "corvane/frame/window_styles.h"

namespace corvane {
namespace {

constexpr COLORREF kUnusedKey = RGB(255, 255, 255);
constexpr BYTE kPracticallyInvisible = 1;  // of 255; at 0 the mouse would pass through

}  // namespace

constexpr CRuntimeClass CCutBgLayer::classCCutBgLayer{"CCutBgLayer", &CWnd::classCWnd};

CCutBgLayer::CCutBgLayer() : LibraryWindow(this, end_) {}

const WindowDescription& CCutBgLayer::description() const {
  static constexpr auto kMessages = MessageTable(
      On<WM_CREATE>(&CCutBgLayer::OnCreate), On<WM_SIZE>(&CCutBgLayer::OnSize),
      On<WM_DESTROY>(&CCutBgLayer::OnDestroy), On<WM_LBUTTONDOWN>(&CCutBgLayer::OnLButtonDown),
      On<WM_LBUTTONUP>(&CCutBgLayer::OnLButtonUp), On<WM_MOUSEMOVE>(&CCutBgLayer::OnMouseMove),
      On<WM_MOVE>(&CCutBgLayer::OnMove));
  static const WindowDescription description{classCCutBgLayer, kMessages.extending(base_messages()),
                                             KeyFilter::to_parent};
  return description;
}

void CCutBgLayer::SetParentHwnd(HWND window) { rect_layer_.SetParentHwnd(window); }

void CCutBgLayer::ShowBtn(int use_bar) { rect_layer_.ShowBtn(use_bar); }

void CCutBgLayer::SetOCRMode(int text_recognition) { rect_layer_.SetOCRMode(text_recognition); }

int CCutBgLayer::ShowWindow(int command) {
  shown_ = command;
  const WindowWatch watch(*this);
  if (rect_layer_.GetSafeHwnd() != nullptr) rect_layer_.ShowWindow(command);
  return watch.object_gone() ? FALSE : CWnd::ShowWindow(command);
}

HWND CCutBgLayer::GetBarHwnd() const { return rect_layer_.GetBarHwnd(); }

CRect CCutBgLayer::GetCutRect() const { return rect_layer_.GetCutRect(); }

void CCutBgLayer::SetCutRect(CRect rectangle) { rect_layer_.SetCutRect(rectangle); }

int CCutBgLayer::OnCreate(LPCREATESTRUCT creation) {
  if (CWnd::OnCreate(creation) == -1) return -1;
  if (!become_overlay(*this)) return -1;
  SetLayeredWindowAttributes(kUnusedKey, kPracticallyInvisible, LWA_ALPHA);
  return create_overlay(rect_layer_, L"cutRectLayer", *this) ? 0 : -1;
}

void CCutBgLayer::OnSize(UINT kind, int width, int height) {
  const WindowWatch watch(*this);
  CWnd::OnSize(kind, width, height);
  if (!watch.object_gone()) cover_with_rect_layer();
}

void CCutBgLayer::OnMove(int x, int y) {
  const WindowWatch watch(*this);
  CWnd::OnMove(x, y);
  if (!watch.object_gone()) cover_with_rect_layer();
}

void CCutBgLayer::cover_with_rect_layer() {
  if (rect_layer_.GetSafeHwnd() == nullptr) return;
  CRect place;
  GetWindowRect(place);
  rect_layer_.MoveWindow(place, TRUE);
}

void CCutBgLayer::OnLButtonDown(UINT flags, CPoint point) {
  if (rect_layer_.GetSafeHwnd() != nullptr) rect_layer_.OnLButtonDown(flags, point);
}

void CCutBgLayer::OnLButtonUp(UINT flags, CPoint point) {
  if (rect_layer_.GetSafeHwnd() != nullptr) rect_layer_.OnLButtonUp(flags, point);
}

void CCutBgLayer::OnMouseMove(UINT flags, CPoint point) {
  if (rect_layer_.GetSafeHwnd() != nullptr) rect_layer_.OnMouseMove(flags, point);
}

}  // namespace corvane
