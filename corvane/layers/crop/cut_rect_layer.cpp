#include "corvane/layers/crop/cut_rect_layer.h"

#include "corvane/frame/overlay_class.h"
#include "corvane/frame/window_styles.h"
#include "corvane/platform/base_services/set_font.h"
#include "corvane/platform/framework/client_dc.h"
#include "corvane/platform/framework/paint_dc.h"

namespace corvane {
namespace {

constexpr CRect kBufferRect(0, 0, 10, 10);
constexpr COLORREF kDark = RGB(0, 0, 0);
constexpr COLORREF kClear = RGB(255, 255, 255);  // the colour key: what is below shows through
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr BYTE kDimming = 120;  // of 255
constexpr int kOutlineWidth = 2;
constexpr int kHintHeight = 32;
constexpr const wchar_t* kHintFace = L"宋体";
constexpr const wchar_t* kHintText = L"请按住鼠标左键框选识别文字";

void show_cursor_of(int code) {
  ::SetCursor(::LoadCursorW(nullptr, MAKEINTRESOURCEW(crop_cursor_id(code))));
}

}  // namespace

constexpr CRuntimeClass CCutRectLayer::classCCutRectLayer{"CCutRectLayer", &CWnd::classCWnd};

CCutRectLayer::CCutRectLayer() : LibraryWindow(this, end_) {}

const WindowDescription& CCutRectLayer::description() const {
  static constexpr auto kMessages = MessageTable(
      On<WM_CREATE>(&CCutRectLayer::OnCreate), On<WM_SIZE>(&CCutRectLayer::OnSize),
      On<WM_DESTROY>(&CCutRectLayer::OnDestroy), On<WM_PAINT>(&CCutRectLayer::OnPaint),
      On<WM_ERASEBKGND>(&CCutRectLayer::OnEraseBkgnd),
      On<WM_LBUTTONDOWN>(&CCutRectLayer::OnLButtonDown),
      On<WM_LBUTTONUP>(&CCutRectLayer::OnLButtonUp), On<WM_MOUSEMOVE>(&CCutRectLayer::OnMouseMove),
      On<WM_CAPTURECHANGED>(&CCutRectLayer::OnCaptureChanged), On<WM_MOVE>(&CCutRectLayer::OnMove));
  static const WindowDescription description{
      classCCutRectLayer, kMessages.extending(base_messages()), KeyFilter::to_parent};
  return description;
}

int CCutRectLayer::ShowWindow(int command) {
  frame_.clear();
  const WindowWatch watch(*this);
  hide_bar();
  if (watch.object_gone()) return FALSE;
  const int was_visible = CWnd::ShowWindow(command);
  if (watch.window_gone()) return was_visible;
  if (IsWindowVisible()) {
    Invalidate(FALSE);  // the former frame, when the window was up already
  } else if (::GetCapture() == m_hWnd) {
    ::ReleaseCapture();
  }
  return was_visible;
}

CRect CCutRectLayer::GetCutRect() const { return frame_.rectangle(); }

void CCutRectLayer::SetCutRect(CRect rectangle) {
  frame_.set_rectangle(rectangle);
  if (m_hWnd == nullptr) return;
  const WindowWatch watch(*this);
  if (frame_.empty()) hide_bar();
  if (watch.window_gone()) return;
  Invalidate(FALSE);
  show_new_frame(SW_SHOWNOACTIVATE);
}

void CCutRectLayer::ShowBtn(int use_bar) { show_buttons_ = use_bar != 0; }

void CCutRectLayer::SetOCRMode(int text_recognition) {
  text_recognition_ = text_recognition != 0;
  const WindowWatch watch(*this);
  button_layer_.SetOCRMode(text_recognition);
  if (!watch.object_gone() && bar_is_shown()) place_bar();
}

void CCutRectLayer::SetParentHwnd(HWND window) { button_layer_.SetParentHwnd(window); }

int CCutRectLayer::DragFrame(CPoint point) const { return frame_.hit_test(point); }

void CCutRectLayer::DrawGreenFrame(HDC dc) const {
  {
    const CPen pen(PS_SOLID, kOutlineWidth, kGreen);
    const HGDIOBJ former = ::SelectObject(dc, pen.GetSafeHandle());
    const auto outline = frame_.outline();
    ::MoveToEx(dc, outline.front().x, outline.front().y, nullptr);
    for (std::size_t i = 1; i < outline.size(); ++i) ::LineTo(dc, outline[i].x, outline[i].y);
    ::SelectObject(dc, former);
  }
  const CBrush brush(kGreen);
  for (const RECT& square : frame_.handle_squares()) ::FillRect(dc, &square, brush);
}

int CCutRectLayer::OnCreate(LPCREATESTRUCT creation) {
  if (CWnd::OnCreate(creation) == -1) return -1;
  create_fill_buffers();
  if (!become_overlay(*this)) return -1;
  SetLayeredWindowAttributes(kClear, kDimming, LWA_COLORKEY | LWA_ALPHA);
  return create_overlay(button_layer_, L"cutBtnLayer", *this) ? 0 : -1;
}

void CCutRectLayer::create_fill_buffers() {
  const CClientDC dc(this);
  dark_buffer_.CreateBufferDC(dc, kBufferRect);
  dark_buffer_.SetBackColor(kBufferRect, kDark);
  clear_buffer_.CreateBufferDC(dc, kBufferRect);
  clear_buffer_.SetBackColor(kBufferRect, kClear);
}

void CCutRectLayer::OnPaint() {
  const WindowWatch watch(*this);
  const CPaintDC dc(this);
  if (watch.object_gone()) return;
  CRect client;
  GetClientRect(client);
  if (dark_buffer_.GetDC() != nullptr) dark_buffer_.Paste(dc, client, SRCCOPY);
  if (!frame_.empty()) {
    if (clear_buffer_.GetDC() != nullptr) clear_buffer_.Paste(dc, frame_.rectangle(), SRCCOPY);
    DrawGreenFrame(dc);
  } else if (text_recognition_) {
    draw_hint(dc, client);
  }
}

void CCutRectLayer::draw_hint(HDC dc, CRect client) const {
  ::SetTextColor(dc, kGreen);
  ::SetBkMode(dc, TRANSPARENT);
  const CSetFont font(dc, kHintHeight, 0, FW_BOLD, kHintFace);
  ::DrawTextW(dc, kHintText, -1, client, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

BOOL CCutRectLayer::OnEraseBkgnd(CDC*) { return FALSE; }

void CCutRectLayer::OnLButtonDown(UINT flags, CPoint point) {
  const WindowWatch watch(*this);
  SetCapture();
  if (watch.object_gone()) return;
  const int code = frame_.press(point);
  show_cursor_of(code);
  if (code == crop_hit::outside) hide_bar();
  if (!watch.object_gone()) CWnd::OnLButtonDown(flags, point);
}

void CCutRectLayer::OnMouseMove(UINT flags, CPoint point) {
  const WindowWatch watch(*this);
  CRect client;
  GetClientRect(client);
  show_cursor_of(frame_.move(point, client));
  if (frame_.dragging()) {
    update_shown_bar();
    if (watch.object_gone()) return;
    Invalidate(FALSE);
  }
  CWnd::OnMouseMove(flags, point);
}

void CCutRectLayer::OnLButtonUp(UINT flags, CPoint point) {
  const WindowWatch watch(*this);
  const bool drew = end_drag();  // before the capture goes, which would end it too
  ::ReleaseCapture();
  if (watch.object_gone()) return;
  if (drew) show_new_frame(SW_SHOW);
  if (!watch.object_gone()) CWnd::OnLButtonUp(flags, point);
}

// Somebody else has the mouse: the drag ends where it is. The bar must not take the activation
// away.
void CCutRectLayer::OnCaptureChanged(CWnd* new_owner) {
  if (new_owner != nullptr && new_owner->GetSafeHwnd() == m_hWnd) return;
  if (end_drag()) show_new_frame(SW_SHOWNOACTIVATE);
}

// True: it was to draw a new frame.
bool CCutRectLayer::end_drag() {
  const bool drew = frame_.drag_mode() == crop_hit::outside;
  frame_.release();
  return drew;
}

void CCutRectLayer::show_new_frame(int bar_command) {
  if (m_hWnd == nullptr || !IsWindowVisible()) return;
  if (frame_.empty()) return Invalidate(FALSE);  // a click: the former frame still stands there
  if (!show_buttons_ || button_layer_.GetSafeHwnd() == nullptr) return;
  const WindowWatch watch(*this);
  place_bar();
  if (!watch.window_gone() && IsWindowVisible()) button_layer_.ShowWindow(bar_command);
}

void CCutRectLayer::OnSize(UINT kind, int width, int height) {
  const WindowWatch watch(*this);
  CWnd::OnSize(kind, width, height);
  if (!watch.object_gone()) update_shown_bar();
}

void CCutRectLayer::OnMove(int x, int y) {
  const WindowWatch watch(*this);
  CWnd::OnMove(x, y);
  if (!watch.object_gone()) update_shown_bar();
}

bool CCutRectLayer::bar_is_shown() const {
  return button_layer_.GetSafeHwnd() != nullptr && button_layer_.IsWindowVisible() != FALSE;
}

void CCutRectLayer::hide_bar() {
  if (bar_is_shown()) button_layer_.ShowWindow(SW_HIDE);
}

void CCutRectLayer::update_shown_bar() {
  if (!bar_is_shown()) return;
  if (show_buttons_) {
    place_bar();
  } else {
    hide_bar();
  }
}

void CCutRectLayer::place_bar() {
  CRect bar;
  button_layer_.GetClientRect(bar);
  CRect client;
  GetClientRect(client);
  CPoint corner = CRect(place_crop_bar(frame_.rectangle(), bar.Size(), client)).TopLeft();
  ClientToScreen(&corner);
  button_layer_.MoveWindow(corner.x, corner.y, bar.Width(), bar.Height(), TRUE);
}

}  // namespace corvane
