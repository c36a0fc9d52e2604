#include "corvane/layers/crop/cut_btn_layer.h"

#include "corvane/layers/frame/layer_key_filter.h"
#include "corvane/layers/frame/layer_messages.h"

namespace corvane {
namespace {

constexpr int skin_list = 4;
constexpr COLORREF white = RGB(255, 255, 255);

int number_of(std::size_t index) { return static_cast<int>(index) + 1; }

}  // namespace

constexpr CRuntimeClass CCutBtnLayer::classCCutBtnLayer{"CCutBtnLayer", &CWnd::classCWnd};

CCutBtnLayer::CCutBtnLayer() = default;

CCutBtnLayer::~CCutBtnLayer() { DestroyWindow(); }

const CRuntimeClass* CCutBtnLayer::GetRuntimeClass() const { return &classCCutBtnLayer; }

const MessageMap* CCutBtnLayer::GetMessageMap() const {
  static constexpr auto messages =
      MessageTable(On<WM_CREATE>(&CCutBtnLayer::OnCreate), On<WM_SIZE>(&CCutBtnLayer::OnSize),
                   On<WM_DESTROY>(&CCutBtnLayer::OnDestroy), On<WM_PAINT>(&CCutBtnLayer::OnPaint),
                   On<WM_ERASEBKGND>(&CCutBtnLayer::OnEraseBkgnd));
  static const MessageMap map = messages.Extending(CWnd::GetMessageMap());
  return &map;
}

BOOL CCutBtnLayer::PreTranslateMessage(MSG* message) {
  if (filter_layer_key(KeyFilter::to_parent, m_hWnd, message)) return TRUE;
  return CWnd::PreTranslateMessage(message);
}

void CCutBtnLayer::SetParentHwnd(HWND window) { parent_ = window; }

void CCutBtnLayer::InitConfig() {
  skin_.LoadCtrlList(L"ui_control.xml", skin_list);
  skin_.LoadLanguageList(L"ui_language.xml", skin_list);
  skin_.LoadLogfontList(L"ui_logfont.xml");
}

void CCutBtnLayer::LoadResources() {
  const auto watch = liveness_.watch();
  for (std::size_t i = 0; !watch.gone() && i < buttons_.size(); ++i) {
    skin_.LoadGdiBtn(buttons_[i].control, buttons_[i].rect, this, number_of(i));
  }
}

CropButtonRects CCutBtnLayer::ButtonRects() const {
  CropButtonRects rects;
  for (std::size_t i = 0; i < rects.size(); ++i) rects[i] = buttons_[i].rect;
  return rects;
}

void CCutBtnLayer::SetRect() {
  const CropButtonRects laid = lay_out_crop_buttons(ButtonRects());
  for (std::size_t i = 0; i < laid.size(); ++i) buttons_[i].rect = laid[i];
  const auto watch = liveness_.watch();
  for (std::size_t i = 0; i < laid.size() && !watch.gone(); ++i) {
    CGdiBtnEx& control = buttons_[i].control;
    if (control.GetSafeHwnd()) control.MoveWindow(&laid[i], TRUE);
  }
}

void CCutBtnLayer::SetOCRMode(int text_recognition) {
  ShowRow(text_recognition ? CropRow::text_recognition : CropRow::normal);
}

void CCutBtnLayer::ShowRow(CropRow row) {
  const auto watch = liveness_.watch();
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    CGdiBtnEx& control = buttons_[i].control;
    if (!control.GetSafeHwnd()) continue;
    control.ShowWindow(row_of_crop_button(number_of(i)) == row ? SW_SHOW : SW_HIDE);
    if (watch.gone()) return;
  }
  if (!m_hWnd) return;
  const RECT bounds = crop_row_bounds(ButtonRects(), row);
  MoveWindow(&bounds, TRUE);
}

BOOL CCutBtnLayer::OnCommand(WPARAM wparam, LPARAM lparam) {
  if (!lparam) return CWnd::OnCommand(wparam, lparam);
  const HWND sender = reinterpret_cast<HWND>(lparam);
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    if (buttons_[i].control.GetSafeHwnd() != sender) continue;
    if (parent_) ::PostMessageW(parent_, WM_CUT_CMD, static_cast<WPARAM>(number_of(i)), 0);
    break;
  }
  return TRUE;
}

int CCutBtnLayer::OnCreate(LPCREATESTRUCT creation) {
  if (CWnd::OnCreate(creation) == -1) return -1;
  const auto watch = liveness_.watch();
  ModifyStyle(WS_THICKFRAME, 0, SWP_FRAMECHANGED);
  if (watch.gone()) return -1;
  InitConfig();
  LoadResources();
  if (watch.gone()) return -1;
  SetRect();
  if (watch.gone()) return -1;
  ShowRow(CropRow::normal);
  return watch.gone() || !m_hWnd ? -1 : 0;
}

void CCutBtnLayer::OnDestroy() {
  const auto watch = liveness_.watch();
  CWnd::OnDestroy();
  if (watch.gone()) return;
  skin_.CtrlRelease();
  skin_.LanguageRelease();
  skin_.LogfontRelease();
  background_.release();
}

void CCutBtnLayer::OnPaint() { background_.show(*this, liveness_); }

BOOL CCutBtnLayer::OnEraseBkgnd(CDC* dc) {
  if (!background_.rebuild(*this, dc, white)) return TRUE;
  const auto watch = liveness_.watch();
  SetRect();
  for (std::size_t i = 0; !watch.gone() && i < buttons_.size(); ++i) {
    buttons_[i].control.SetBkGnd(background_.dc(), buttons_[i].rect);
  }
  return TRUE;
}

}  // namespace corvane
