#include "corvane/layers/crop/cut_bg_layer.h"

#include "corvane/layers/crop/overlay_class.h"
#include "corvane/layers/frame/layer_key_filter.h"

namespace corvane {
namespace {

constexpr COLORREF unused_key = RGB(255, 255, 255);
constexpr BYTE practically_invisible = 1;  // of 255; at 0 the mouse would pass through

}  // namespace

constexpr CRuntimeClass CCutBgLayer::classCCutBgLayer{"CCutBgLayer", &CWnd::classCWnd};

CCutBgLayer::CCutBgLayer() = default;

CCutBgLayer::~CCutBgLayer() { DestroyWindow(); }

const CRuntimeClass* CCutBgLayer::GetRuntimeClass() const { return &classCCutBgLayer; }

const MessageMap* CCutBgLayer::GetMessageMap() const {
  static constexpr auto messages = MessageTable(
      On<WM_CREATE>(&CCutBgLayer::OnCreate), On<WM_SIZE>(&CCutBgLayer::OnSize),
      On<WM_DESTROY>(&CCutBgLayer::OnDestroy), On<WM_LBUTTONDOWN>(&CCutBgLayer::OnLButtonDown),
      On<WM_LBUTTONUP>(&CCutBgLayer::OnLButtonUp), On<WM_MOUSEMOVE>(&CCutBgLayer::OnMouseMove),
      On<WM_MOVE>(&CCutBgLayer::OnMove));
  static const MessageMap map = messages.Extending(CWnd::GetMessageMap());
  return &map;
}

BOOL CCutBgLayer::PreTranslateMessage(MSG* message) {
  if (filter_layer_key(KeyFilter::to_parent, m_hWnd, message)) return TRUE;
  return CWnd::PreTranslateMessage(message);
}

void CCutBgLayer::SetParentHwnd(HWND window) { rect_layer_.SetParentHwnd(window); }

void CCutBgLayer::ShowBtn(int use_bar) { rect_layer_.ShowBtn(use_bar); }

void CCutBgLayer::SetOCRMode(int text_recognition) { rect_layer_.SetOCRMode(text_recognition); }

int CCutBgLayer::ShowWindow(int command) {
  shown_ = command;
  const auto watch = liveness_.watch();
  if (rect_layer_.GetSafeHwnd()) rect_layer_.ShowWindow(command);
  return watch.gone() ? FALSE : CWnd::ShowWindow(command);
}

CRect CCutBgLayer::GetCutRect() const { return rect_layer_.GetCutRect(); }

int CCutBgLayer::OnCreate(LPCREATESTRUCT creation) {
  if (CWnd::OnCreate(creation) == -1) return -1;
  const auto watch = liveness_.watch();
  ModifyStyleEx(WS_EX_APPWINDOW, WS_EX_LAYERED);
  if (watch.gone() || !m_hWnd) return -1;
  SetLayeredWindowAttributes(unused_key, practically_invisible, LWA_ALPHA);
  return CreateRectLayer() ? 0 : -1;
}

// False: this window did not outlive it.
bool CCutBgLayer::CreateRectLayer() {
  const auto watch = liveness_.watch();
  rect_layer_.CreateEx(WS_EX_TOOLWINDOW, overlay_class(), L"cutRectLayer", WS_POPUP, 0, 0, 0, 0,
                       m_hWnd, nullptr);
  if (watch.gone()) return false;
  if (rect_layer_.GetSafeHwnd()) rect_layer_.ShowWindow(SW_HIDE);
  return !watch.gone() && m_hWnd;
}

void CCutBgLayer::OnSize(UINT kind, int width, int height) {
  const auto watch = liveness_.watch();
  CWnd::OnSize(kind, width, height);
  if (!watch.gone()) CoverWithRectLayer();
}

void CCutBgLayer::OnMove(int x, int y) {
  const auto watch = liveness_.watch();
  CWnd::OnMove(x, y);
  if (!watch.gone()) CoverWithRectLayer();
}

void CCutBgLayer::CoverWithRectLayer() {
  if (!rect_layer_.GetSafeHwnd()) return;
  CRect place;
  GetWindowRect(place);
  rect_layer_.MoveWindow(place, TRUE);
}

void CCutBgLayer::OnLButtonDown(UINT flags, CPoint point) {
  if (rect_layer_.GetSafeHwnd()) rect_layer_.OnLButtonDown(flags, point);
}

void CCutBgLayer::OnLButtonUp(UINT flags, CPoint point) {
  if (rect_layer_.GetSafeHwnd()) rect_layer_.OnLButtonUp(flags, point);
}

void CCutBgLayer::OnMouseMove(UINT flags, CPoint point) {
  if (rect_layer_.GetSafeHwnd()) rect_layer_.OnMouseMove(flags, point);
}

}  // namespace corvane
