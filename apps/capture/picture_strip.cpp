#include "apps/capture/picture_strip.h"

#include <algorithm>
#include <span>

#include "apps/capture/capture_messages.h"
#include "apps/capture/sorted_listing.h"
#include "apps/capture/strip_painter.h"
#include "apps/capture/thumbnail_order.h"

namespace capture {
namespace {

using namespace corvane;

std::span<const std::wstring> part(const std::vector<std::wstring>& names, const CellRange& cells) {
  return std::span(names).subspan(static_cast<std::size_t>(cells.first),
                                  static_cast<std::size_t>(cells.last - cells.first));
}

}  // namespace

const MessageMap* CPictureStrip::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(
      On<WM_CREATE>(&CPictureStrip::OnCreate), On<WM_DESTROY>(&CPictureStrip::OnDestroy),
      On<WM_ERASEBKGND>(&CPictureStrip::OnEraseBkgnd), On<WM_PAINT>(&CPictureStrip::OnPaint),
      On<WM_SIZE>(&CPictureStrip::OnSize), On<WM_MOUSEMOVE>(&CPictureStrip::OnMouseMove),
      On<WM_MOUSELEAVE>(&CPictureStrip::OnMouseLeave),
      On<WM_MOUSEWHEEL>(&CPictureStrip::OnMouseWheel),
      On<WM_LBUTTONDOWN>(&CPictureStrip::OnLButtonDown),
      On<WM_LBUTTONUP>(&CPictureStrip::OnLButtonUp),
      On<WM_CAPTURECHANGED>(&CPictureStrip::OnCaptureChanged),
      OnMessage<WM_THUMBNAILS_LOADED>(&CPictureStrip::OnThumbnailsLoaded));
  static const MessageMap map = kMessages.extending(CWnd::GetMessageMap());
  return &map;
}

bool CPictureStrip::Open(CWnd* parent) {
  HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
  // Without double clicks: two quick ones are two clicks.
  return CreateEx(0, AfxRegisterWndClass(0, arrow), L"pictures", WS_CHILD | WS_VISIBLE,
                  CRect(0, 0, 0, 0), parent, 0);
}

int CPictureStrip::OnCreate(LPCREATESTRUCT creation) {
  if (CWnd::OnCreate(creation) == -1) return -1;
  loader_ = std::make_unique<CThumbnailLoader>(
      decode_thumbnail, [window = m_hWnd] { ::PostMessageW(window, WM_THUMBNAILS_LOADED, 0, 0); });
  return 0;
}

void CPictureStrip::OnDestroy() {
  loader_.reset();
  CWnd::OnDestroy();
}

void CPictureStrip::ShowPictures(const std::wstring& folder, std::vector<std::wstring> names,
                                 const CString& empty_text) {
  if (folder == folder_ && names == names_ && empty_text_ == empty_text) return;
  const bool other_folder = folder != folder_;
  folder_ = folder;
  names_ = std::move(names);
  empty_text_ = empty_text;
  gesture_.Cancel();
  hovered_ = -1;
  layout_.SetCount(static_cast<int>(names_.size()));
  if (other_folder) {
    cache_.Clear();
    layout_.ScrollTo(0);
  }
  scrolled();
}

int CPictureStrip::cell_of(const std::wstring& name) const {
  auto found = std::lower_bound(names_.begin(), names_.end(), name, stands_before);
  return found != names_.end() && *found == name ? static_cast<int>(found - names_.begin()) : -1;
}

void CPictureStrip::Mark(const std::wstring& name) {
  marked_ = name;
  scroll_to_name(name);
}

void CPictureStrip::ScrollToNew(const std::wstring& name) {
  store_loaded();
  cache_.Forget(name);
  scroll_to_name(name);
}

void CPictureStrip::scroll_to_name(const std::wstring& name) {
  layout_.Show(cell_of(name));
  scrolled();
}

void CPictureStrip::scrolled() {
  request_thumbnails();
  Invalidate(FALSE);
}

void CPictureStrip::request_thumbnails() {
  if (loader_ == nullptr) return;
  store_loaded();
  const CellRange visible = layout_.Visible();
  cache_.Keep(part(names_, neighbourhood(visible, layout_.count())));
  std::vector<ThumbnailRequest> requests;
  for (const int cell : load_order(visible, layout_.count())) {
    const std::wstring& name = names_[static_cast<std::size_t>(cell)];
    if (cache_.Find(name) == nullptr) requests.push_back({folder_, name, layout_.PictureBox()});
  }
  loader_->Want(std::move(requests));
}

void CPictureStrip::store_loaded() {
  if (loader_ == nullptr) return;
  const SIZE box = layout_.PictureBox();
  for (LoadedThumbnail& loaded : loader_->TakeLoaded()) {
    const bool fits = loaded.request.box.cx == box.cx && loaded.request.box.cy == box.cy;
    if (!fits || loaded.request.folder != folder_) continue;
    cache_.Put(loaded.request.name, std::move(loaded.thumbnail));
  }
}

LRESULT CPictureStrip::OnThumbnailsLoaded(WPARAM, LPARAM) {
  store_loaded();
  Invalidate(FALSE);
  return 0;
}

BOOL CPictureStrip::OnEraseBkgnd(CDC*) { return TRUE; }

void CPictureStrip::OnPaint() {
  const CPaintDC dc(this);
  CRect client;
  GetClientRect(client);
  if (!buffer_.HasSizeOf(client)) return;
  const StripPainter painter(look_, buffer_);
  painter.draw_background(client);
  const CellRange visible = layout_.Visible();
  for (int cell = visible.first; cell < visible.last; ++cell) {
    const std::wstring& name = names_[static_cast<std::size_t>(cell)];
    painter.draw_cell(layout_, cell,
                      {name.c_str(), cache_.Find(name), cell == hovered_, name == marked_});
  }
  painter.draw_scroll(layout_, gesture_.moves_row());
  if (names_.empty()) painter.draw_empty(client, empty_text_);
  buffer_.Paste(dc, client);
}

void CPictureStrip::OnSize(UINT kind, int width, int height) {
  CWnd::OnSize(kind, width, height);
  const CRect client(0, 0, width, height);
  if (!client.IsRectEmpty()) buffer_.CreateBufferDC(nullptr, client);
  const SIZE former = layout_.PictureBox();
  layout_.SetArea({width, height});
  if (layout_.PictureBox().cy != former.cy) cache_.Clear();
  layout_.Show(cell_of(marked_));
  scrolled();
}

void CPictureStrip::hover(int cell) {
  if (cell == hovered_) return;
  hovered_ = cell;
  Invalidate(FALSE);
}

void CPictureStrip::OnMouseMove(UINT, CPoint point) {
  if (gesture_.active()) {
    const int before = layout_.scroll();
    gesture_.Move(layout_, point);
    if (layout_.scroll() != before) scrolled();
  }
  TRACKMOUSEEVENT leaving{sizeof(TRACKMOUSEEVENT), TME_LEAVE, m_hWnd, 0};
  ::TrackMouseEvent(&leaving);
  hover(gesture_.moves_row() ? -1 : layout_.CellAt(point));
}

void CPictureStrip::OnMouseLeave() { hover(-1); }

BOOL CPictureStrip::OnMouseWheel(UINT, short distance, CPoint screen_point) {
  layout_.ScrollTo(layout_.scroll() - distance * layout_.CellWidth() / WHEEL_DELTA);
  POINT point = screen_point;
  ScreenToClient(&point);
  hovered_ = layout_.CellAt(point);
  scrolled();
  return TRUE;
}

void CPictureStrip::OnLButtonDown(UINT, CPoint point) {
  SetCapture();
  gesture_.Press(layout_, point);
  scrolled();
}

void CPictureStrip::OnLButtonUp(UINT, CPoint point) {
  const int cell = gesture_.Release(layout_, point);
  if (GetCapture() == this) ::ReleaseCapture();
  hover(layout_.CellAt(point));
  Invalidate(FALSE);
  if (cell < 0 || cell >= layout_.count()) return;
  clicked_ = names_[static_cast<std::size_t>(cell)];
  ::PostMessageW(::GetParent(m_hWnd), WM_PICTURE_CLICKED, 0, 0);
}

void CPictureStrip::OnCaptureChanged(CWnd*) {
  gesture_.Cancel();
  Invalidate(FALSE);
}

}  // namespace capture
