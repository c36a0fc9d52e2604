#include "corvane/layers/crop/cut_btn_layer.h"

#include "corvane/frame/layer_messages.h"
#include "corvane/frame/window_lists.h"
#include "corvane/frame/window_styles.h"

namespace corvane {
namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);

int number_of(std::size_t index) { return static_cast<int>(index) + 1; }

}  // namespace

constexpr CRuntimeClass CCutBtnLayer::classCCutBtnLayer{"CCutBtnLayer", &CWnd::classCWnd};

CCutBtnLayer::CCutBtnLayer() : LibraryWindow(this, end_) {}

const WindowDescription& CCutBtnLayer::description() const {
  static constexpr auto kMessages =
      MessageTable(On<WM_CREATE>(&CCutBtnLayer::OnCreate), On<WM_SIZE>(&CCutBtnLayer::OnSize),
                   On<WM_DESTROY>(&CCutBtnLayer::OnDestroy), On<WM_PAINT>(&CCutBtnLayer::OnPaint),
                   On<WM_ERASEBKGND>(&CCutBtnLayer::OnEraseBkgnd));
  static const WindowDescription description{
      classCCutBtnLayer, kMessages.extending(base_messages()), KeyFilter::to_parent};
  return description;
}

void CCutBtnLayer::SetParentHwnd(HWND window) { parent_ = window; }

void CCutBtnLayer::InitConfig() { skin_.Load(kCropBarList); }

void CCutBtnLayer::LoadResources() { load_buttons(skin_, buttons_, *this); }

CropButtonRects CCutBtnLayer::button_rects() const {
  CropButtonRects rects;
  for (std::size_t i = 0; i < rects.size(); ++i) rects[i] = buttons_[i].rect;
  return rects;
}

void CCutBtnLayer::SetRect() {
  const CropButtonRects laid = lay_out_crop_buttons(button_rects());
  for (std::size_t i = 0; i < laid.size(); ++i) buttons_[i].rect = laid[i];
  const WindowWatch watch(*this);
  for (std::size_t i = 0; i < laid.size() && !watch.object_gone(); ++i) {
    CGdiBtnEx& control = buttons_[i].control;
    if (control.GetSafeHwnd() != nullptr) control.MoveWindow(&laid[i], TRUE);
  }
}

void CCutBtnLayer::SetOCRMode(int text_recognition) {
  show_row(text_recognition ? CropRow::text_recognition : CropRow::normal);
}

void CCutBtnLayer::show_row(CropRow row) {
  const WindowWatch watch(*this);
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    CGdiBtnEx& control = buttons_[i].control;
    if (control.GetSafeHwnd() == nullptr) continue;
    control.ShowWindow(row_of_crop_button(number_of(i)) == row ? SW_SHOW : SW_HIDE);
    if (watch.object_gone()) return;
  }
  if (m_hWnd == nullptr) return;
  const RECT bounds = crop_row_bounds(button_rects(), row);
  MoveWindow(&bounds, TRUE);
}

BOOL CCutBtnLayer::OnCommand(WPARAM wparam, LPARAM lparam) {
  if (!lparam) return CWnd::OnCommand(wparam, lparam);
  const auto clicked = find_sender(buttons_, lparam, &SkinnedButton::control);
  if (clicked != buttons_.end() && parent_ != nullptr) {
    const auto index = static_cast<std::size_t>(clicked - buttons_.begin());
    ::PostMessageW(parent_, WM_CUT_CMD, static_cast<WPARAM>(number_of(index)), 0);
  }
  return TRUE;
}

int CCutBtnLayer::OnCreate(LPCREATESTRUCT creation) {
  if (CWnd::OnCreate(creation) == -1) return -1;
  if (!lose_sizing_border(*this)) return -1;
  const WindowWatch watch(*this);
  InitConfig();
  LoadResources();
  if (watch.object_gone()) return -1;
  SetRect();
  if (watch.object_gone()) return -1;
  show_row(CropRow::normal);
  return watch.window_gone() ? -1 : 0;
}

void CCutBtnLayer::OnDestroy() {
  skin_.Release();
  background_.release();
  CWnd::OnDestroy();
}

void CCutBtnLayer::OnPaint() { background_.show(*this); }

BOOL CCutBtnLayer::OnEraseBkgnd(CDC* dc) {
  if (!background_.rebuild(*this, dc, kWhite)) return TRUE;
  const WindowWatch watch(*this);
  SetRect();
  for (std::size_t i = 0; !watch.object_gone() && i < buttons_.size(); ++i) {
    buttons_[i].control.SetBkGnd(background_.dc(), buttons_[i].rect);
  }
  return TRUE;
}

}  // namespace corvane
