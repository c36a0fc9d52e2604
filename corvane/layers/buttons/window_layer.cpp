#include "corvane/layers/buttons/window_layer.h"

#include <algorithm>
#include <new>
#include <utility>

#include "corvane/frame/layer_messages.h"

namespace corvane {
namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr WPARAM kDragByCaption = SC_MOVE | HTCAPTION;

}  // namespace

constexpr CRuntimeClass CWindowLayer::classCWindowLayer{"CWindowLayer", &CWnd::classCWnd};

CWindowLayer::CWindowLayer() : LibraryWindow(this, end_) {}

const WindowDescription& CWindowLayer::description() const {
  static constexpr auto kMessages = MessageTable(
      On<WM_CREATE>(&CWindowLayer::OnCreate), On<WM_ERASEBKGND>(&CWindowLayer::OnEraseBkgnd),
      On<WM_PAINT>(&CWindowLayer::OnPaint), On<WM_LBUTTONDOWN>(&CWindowLayer::OnLButtonDown),
      On<WM_DESTROY>(&CWindowLayer::OnDestroy));
  static const WindowDescription description{
      classCWindowLayer, kMessages.extending(base_messages()), KeyFilter::to_main_window};
  return description;
}

void CWindowLayer::SetXmlListMgr(CXmlListMgr* skin) { skin_ = skin; }

int CWindowLayer::AddBtn(int id) {
  try {
    buttons_.push_back(std::make_shared<Button>());
  } catch (const std::bad_alloc&) {
    return -1;
  }
  buttons_.back()->id = id;
  return static_cast<int>(buttons_.size());
}

void CWindowLayer::DelAllBtn() {
  const auto buttons = std::exchange(buttons_, {});
  for (const ButtonPointer& button : buttons) button->control.DestroyWindow();
}

CWindowLayer::ButtonPointer CWindowLayer::find(int id) const {
  const auto found = std::find_if(buttons_.begin(), buttons_.end(),
                                  [id](const ButtonPointer& button) { return button->id == id; });
  return found == buttons_.end() ? nullptr : *found;
}

CRect CWindowLayer::GetBtnRect(int id) const {
  const ButtonPointer button = find(id);
  return button ? button->rect : CRect();
}

void CWindowLayer::SetBtnRect(int id, CRect rect) {
  const ButtonPointer button = find(id);
  if (!button) return;
  button->rect = rect;
  if (button->control.GetSafeHwnd() == nullptr) return;
  const WindowWatch watch(*this);
  button->control.MoveWindow(rect, TRUE);
  if (!watch.object_gone()) button->control.SetBkGnd(background_.dc(), rect);
}

void CWindowLayer::SetBgImage(Gdiplus::Image* image, CRect) { image_ = image; }

int CWindowLayer::ShowWindow(int command) {
  show_state_ = command;
  return CWnd::ShowWindow(command);
}

int CWindowLayer::IsShowWindow() const { return show_state_ == SW_SHOW ? 1 : 0; }

int CWindowLayer::OnCreate(LPCREATESTRUCT creation) {
  if (CWnd::OnCreate(creation) == -1) return -1;
  drawing_.Init();
  const WindowWatch watch(*this);
  // The loader's messages may change the list and take back the skin.
  for (std::size_t i = 0; skin_ != nullptr && i < buttons_.size(); ++i) {
    const ButtonPointer button = buttons_[i];
    skin_->LoadGdiBtn(button->control, button->rect, this, button->id);
    if (watch.object_gone()) return -1;
  }
  return 0;
}

BOOL CWindowLayer::OnEraseBkgnd(CDC* dc) {
  if (!background_.rebuild(*this, dc, kWhite)) return TRUE;
  drawing_.DrawImage(background_.dc(), image_, background_.rect());
  const WindowWatch watch(*this);
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    const ButtonPointer button = buttons_[i];
    if (button->control.GetSafeHwnd() != nullptr) button->control.MoveWindow(button->rect, TRUE);
    if (watch.object_gone()) return TRUE;
    button->control.SetBkGnd(background_.dc(), button->rect);
  }
  return TRUE;
}

void CWindowLayer::OnPaint() { background_.show(*this); }

void CWindowLayer::OnLButtonDown(UINT, CPoint) {
  ::SystemParametersInfoW(SPI_SETDRAGFULLWINDOWS, TRUE, nullptr, 0);
  // The window system drags the parent until the button is released; by then this layer may be
  // gone.
  ::SendMessageW(::GetParent(m_hWnd), WM_SYSCOMMAND, kDragByCaption, 0);
}

BOOL CWindowLayer::OnCommand(WPARAM wparam, LPARAM lparam) {
  const auto clicked = find_sender(
      buttons_, lparam, [](const ButtonPointer& button) -> const CWnd& { return button->control; });
  if (clicked == buttons_.end()) return CWnd::OnCommand(wparam, lparam);
  if (const HWND parent = ::GetParent(m_hWnd); parent != nullptr) {
    ::PostMessageW(parent, WM_LAYER_BTN_CLICK, static_cast<WPARAM>((*clicked)->id), lparam);
  }
  return TRUE;
}

void CWindowLayer::OnDestroy() {
  const WindowWatch watch(*this);
  CWnd::OnDestroy();
  if (watch.object_gone()) return;
  background_.release();
  DelAllBtn();
}

}  // namespace corvane
