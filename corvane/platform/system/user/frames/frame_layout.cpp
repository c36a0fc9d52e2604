#include "corvane/platform/system/user/frames/frame_layout.h"

#include <algorithm>

#include "corvane/platform/geometry.h"
#include "corvane/platform/system/user/frames/frame_metrics.h"

namespace corvane::system {
namespace {

constexpr int kCornerLength = kCaptionHeight;  // along a side, where a corner is taken hold of
constexpr int kTextGap = 4;                    // between the caption's text and what is beside it

bool has_caption(DWORD style) { return (style & WS_CAPTION) == WS_CAPTION; }

// What is left of a window that is minimized: a caption whose boxes bring it back.
DWORD style_seen(DWORD style) {
  constexpr DWORD kOthers = WS_THICKFRAME | WS_VSCROLL | WS_HSCROLL;
  return (style & WS_MINIMIZE) == 0 ? style : (style & ~kOthers) | WS_CAPTION;
}

// A program may ask about any rectangle.
RECT summable(const RECT& rect) {
  return {clamp_to_summable(rect.left), clamp_to_summable(rect.top), clamp_to_summable(rect.right),
          clamp_to_summable(rect.bottom)};
}

int border_of(DWORD style, DWORD ex_style) {
  int border = 0;
  if ((with_window_edge(style, ex_style) & WS_EX_WINDOWEDGE) != 0) {
    border += kEdge;
  } else if ((ex_style & WS_EX_STATICEDGE) != 0) {
    border += kStaticEdge;
  }
  if ((style & WS_CAPTION) != 0 || (ex_style & WS_EX_DLGMODALFRAME) != 0) border += kFlatBorder;
  if ((style & WS_THICKFRAME) != 0) border += kSizingBorder;
  return border;
}

int caption_height(DWORD ex_style) {
  return (ex_style & WS_EX_TOOLWINDOW) != 0 ? kSmallCaptionHeight : kCaptionHeight;
}

int box_width(DWORD ex_style) {
  return (ex_style & WS_EX_TOOLWINDOW) != 0 ? kSmallBoxWidth : kBoxWidth;
}

bool has_box(int hit_code, DWORD style, DWORD ex_style) {
  if ((style & WS_SYSMENU) == 0) return false;
  if (hit_code == HTCLOSE) return true;
  if ((ex_style & WS_EX_TOOLWINDOW) != 0) return false;
  return (style & (hit_code == HTMAXBUTTON ? WS_MAXIMIZEBOX : WS_MINIMIZEBOX)) != 0;
}

// -1, 0 or 1: in the first part of a side, in its middle, in the last part.
int part_of_side(int at, int begin, int end, int depth) {
  if (at < begin + depth) return -1;
  return at >= end - depth ? 1 : 0;
}

}  // namespace

DWORD with_window_edge(DWORD style, DWORD ex_style) {
  const DWORD without = ex_style & ~WS_EX_WINDOWEDGE;
  if ((ex_style & WS_EX_DLGMODALFRAME) != 0) return without | WS_EX_WINDOWEDGE;
  if ((ex_style & WS_EX_STATICEDGE) != 0) return without;
  const bool raised = (style & (WS_THICKFRAME | WS_DLGFRAME)) != 0;  // a caption holds WS_DLGFRAME
  return raised ? without | WS_EX_WINDOWEDGE : without;
}

FrameLayout::FrameLayout(const RECT& outer, DWORD style, DWORD ex_style)
    : outer_(summable(outer)),
      style_(style_seen(style)),
      ex_style_(ex_style),
      border_(border_of(style_, ex_style)),
      client_edge_((ex_style & WS_EX_CLIENTEDGE) != 0 ? kEdge : 0) {
  if (!has_caption(style_)) return;
  caption_ = {
      outer_.left + border_, outer_.top + border_, outer_.right - border_,
      std::min<int>(outer_.top + border_ + caption_height(ex_style), outer_.bottom - border_)};
  if (IsRectEmpty(&caption_)) caption_ = {};
  place_boxes();
}

// From the right; one for which there is no room is left out.
void FrameLayout::place_boxes() {
  int right = caption_.right;
  for (Box& box : boxes_) {
    const int left = right - box_width(ex_style_);
    if (!has_box(box.hit_code, style_, ex_style_) || left < caption_.left) continue;
    box.rect = {left, caption_.top, right, caption_.bottom};
    right = left;
  }
}

RECT FrameLayout::text() const {
  RECT text = caption_;
  for (const Box& box : boxes_) {
    if (!IsRectEmpty(&box.rect)) text.right = box.rect.left;
  }
  text.left += kTextGap;
  text.right -= kTextGap;
  return text.left < text.right ? text : RECT{};
}

RECT FrameLayout::box(int hit_code) const {
  for (const Box& box : boxes_) {
    if (box.hit_code == hit_code) return box.rect;
  }
  return {};
}

FrameMargins FrameLayout::margins() const {
  const int side = border_ + client_edge_;
  if (!has_caption(style_)) return {side, side, side, side};
  return {side, side + caption_height(ex_style_), side, side};
}

RECT FrameLayout::inside() const {
  const FrameMargins away = margins();
  RECT rect{outer_.left + away.left, outer_.top + away.top, outer_.right - away.right,
            outer_.bottom - away.bottom};
  rect.right = std::max(rect.right, rect.left);
  rect.bottom = std::max(rect.bottom, rect.top);
  if ((style_ & WS_MINIMIZE) != 0) rect.right = rect.left;
  return rect;
}

int FrameLayout::sizing_hit(POINT point) const {
  if ((style_ & WS_THICKFRAME) == 0 || (style_ & WS_MAXIMIZE) != 0) return HTNOWHERE;
  int across = part_of_side(point.x, outer_.left, outer_.right, border_);
  int down = part_of_side(point.y, outer_.top, outer_.bottom, border_);
  if (across == 0 && down == 0) return HTNOWHERE;
  const int width = outer_.right - outer_.left;
  const int height = outer_.bottom - outer_.top;
  if (across == 0) {
    across = part_of_side(point.x, outer_.left, outer_.right, std::min(kCornerLength, width / 3));
  } else if (down == 0) {
    down = part_of_side(point.y, outer_.top, outer_.bottom, std::min(kCornerLength, height / 3));
  }
  constexpr int kCodes[3][3] = {{HTTOPLEFT, HTTOP, HTTOPRIGHT},
                                {HTLEFT, HTNOWHERE, HTRIGHT},
                                {HTBOTTOMLEFT, HTBOTTOM, HTBOTTOMRIGHT}};
  return kCodes[down + 1][across + 1];
}

int FrameLayout::hit(POINT point) const {
  if (PtInRect(&outer_, point) == 0) return HTNOWHERE;
  if (const int side = sizing_hit(point); side != HTNOWHERE) return side;
  for (const Box& box : boxes_) {
    if (PtInRect(&box.rect, point) != 0) return box.hit_code;
  }
  return PtInRect(&caption_, point) != 0 ? HTCAPTION : HTBORDER;
}

}  // namespace corvane::system
