#pragma once
// The pictures of a folder in one row that scrolls sideways (wheel, dragging, scroll mark). Posts
// WM_PICTURE_CLICKED to its parent. Only what is seen and its neighbourhood is decoded and kept.
#include <memory>
#include <string>
#include <vector>

#include "apps/capture/look.h"
#include "apps/capture/strip_gesture.h"
#include "apps/capture/strip_layout.h"
#include "apps/capture/thumbnail_cache.h"
#include "apps/capture/thumbnail_loader.h"
#include "corvane/platform/drawing/buffer_dc.h"
#include "corvane/platform/framework/framework.h"

namespace capture {

class CPictureStrip : public corvane::CWnd {
 public:
  explicit CPictureStrip(const CLook& look) : look_(look) {}  // which outlives it
  ~CPictureStrip() override { DestroyWindow(); }              // ends the thumbnail thread

  bool Open(corvane::CWnd* parent);
  // The names of the folder's pictures, in order (stands_before). The same folder again keeps its
  // thumbnails and its place. `empty_text` is shown when there are none.
  void ShowPictures(const std::wstring& folder, std::vector<std::wstring> names,
                    const corvane::CString& empty_text);
  const std::vector<std::wstring>& names() const { return names_; }
  // Marks the opened picture and scrolls to it; a name that is not there marks none.
  void Mark(const std::wstring& name);
  // Scrolls to a picture that was just written; its thumbnail is made anew.
  void ScrollToNew(const std::wstring& name);
  const std::wstring& ClickedName() const { return clicked_; }

  const CStripLayout& layout() const { return layout_; }
  int hovered() const { return hovered_; }  // cell; -1: none
  const CThumbnailCache& thumbnails() const { return cache_; }

 protected:
  const corvane::MessageMap* GetMessageMap() const override;
  int OnCreate(LPCREATESTRUCT creation);
  void OnDestroy();
  BOOL OnEraseBkgnd(corvane::CDC* dc);
  void OnPaint();
  void OnSize(UINT kind, int width, int height);
  void OnMouseMove(UINT flags, corvane::CPoint point);
  void OnMouseLeave();
  BOOL OnMouseWheel(UINT flags, short distance, corvane::CPoint screen_point);
  void OnLButtonDown(UINT flags, corvane::CPoint point);
  void OnLButtonUp(UINT flags, corvane::CPoint point);
  void OnCaptureChanged(corvane::CWnd* new_owner);
  LRESULT OnThumbnailsLoaded(WPARAM, LPARAM);

 private:
  void scroll_to_name(const std::wstring& name);
  int cell_of(const std::wstring& name) const;  // -1: not there
  void hover(int cell);
  void scrolled();  // loads what came into view, repaints
  void request_thumbnails();
  void store_loaded();

  const CLook& look_;
  std::wstring folder_;
  std::vector<std::wstring> names_;
  std::wstring marked_;
  std::wstring clicked_;
  corvane::CString empty_text_;
  CStripLayout layout_;
  CStripGesture gesture_;
  int hovered_ = -1;
  CThumbnailCache cache_;
  std::unique_ptr<CThumbnailLoader> loader_;  // while there is a window
  corvane::CBufferDC buffer_;
};

}  // namespace capture
