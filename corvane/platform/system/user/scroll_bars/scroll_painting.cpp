#include "corvane/platform/system/user/scroll_bars/scroll_painting.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "corvane/platform/system/user/painting/painting.h"
#include "corvane/platform/system/user/painting/soft_shapes.h"
#include "corvane/platform/system/user/scroll_bars/scroll_bars.h"

namespace corvane::system {
namespace {

constexpr COLORREF kTrack = RGB(0xF0, 0xF2, 0xF4);
constexpr COLORREF kTrackPressed = RGB(0xE2, 0xE6, 0xEA);
constexpr COLORREF kThumb = RGB(0xBF, 0xC5, 0xCC);
constexpr COLORREF kThumbFocused = RGB(0x6F, 0x9B, 0xD8);
constexpr COLORREF kThumbPressed = RGB(0x87, 0x90, 0x9A);
constexpr COLORREF kArrow = RGB(0x6B, 0x74, 0x7E);
constexpr COLORREF kArrowPressed = RGB(0x33, 0x3B, 0x44);
constexpr COLORREF kArrowDisabled = RGB(0xC9, 0xCE, 0xD4);

constexpr int kThumbMargin = 4;  // pixels across the bar
constexpr int kThumbGap = 1;     // pixels along it
constexpr int kTriangleHeight = 4;

class BarPainter {
 public:
  BarPainter(HDC dc, const RECT& bar, ScrollAxis axis) : dc_(dc), bar_(bar), axis_(axis) {}

  void fill(ScrollSpan along, ScrollSpan across, COLORREF color) const {
    RECT rect = axis_ == ScrollAxis::vertical
                    ? RECT{across.begin, along.begin, across.end, along.end}
                    : RECT{along.begin, across.begin, along.end, across.end};
    OffsetRect(&rect, bar_.left, bar_.top);
    fill_rect(dc_, rect, color);
  }
  void fill(ScrollSpan along, COLORREF color) const { fill(along, {0, thickness()}, color); }

  int thickness() const {
    return axis_ == ScrollAxis::vertical ? bar_.right - bar_.left : bar_.bottom - bar_.top;
  }
  ScrollSpan thumb_across() const {
    const int margin = std::min(kThumbMargin, thickness() / 4);
    return {margin, thickness() - margin};
  }

  // A bar with half circles for ends.
  void fill_round(ScrollSpan along, ScrollSpan across, COLORREF color, COLORREF under) const {
    fill(along, across, color);
    const double radius = across.length() / 2.0;
    const int reach = across.length() / 2;
    for (int depth = 0; depth <= reach && depth < along.length(); ++depth) {
      for (int place = across.begin; place < across.end; ++place) {
        const double aside = place + 0.5 - (across.begin + radius);
        const double share = circle_coverage(std::hypot(depth + 0.5 - radius, aside), radius);
        if (depth + 0.5 >= radius || share >= 1) continue;
        const COLORREF edge = mixed(under, color, share);
        const ScrollSpan pixel{place, place + 1};
        fill({along.begin + depth, along.begin + depth + 1}, pixel, edge);
        fill({along.end - depth - 1, along.end - depth}, pixel, edge);
      }
    }
  }

  // A triangle in the middle of an arrow's span that points back (to 0) or forward.
  void triangle(ScrollSpan arrow, bool forward, COLORREF color) const {
    const int begin = arrow.begin + (arrow.length() - kTriangleHeight) / 2;
    const int middle = thickness() / 2;
    for (int row = 0; row < kTriangleHeight; ++row) {
      const int half = forward ? kTriangleHeight - 1 - row : row;
      fill({begin + row, begin + row + 1}, {middle - half, middle + half + 1}, color);
    }
  }

 private:
  HDC dc_;
  RECT bar_;
  ScrollAxis axis_;
};

void draw_arrow(const BarPainter& painter, const ScrollBarState& bar, ScrollPart part,
                ScrollSpan span) {
  if (span.length() < kTriangleHeight) return;
  const bool pressed = bar.pressed == part;
  const COLORREF color = bar.disabled ? kArrowDisabled : pressed ? kArrowPressed : kArrow;
  painter.triangle(span, part == ScrollPart::line_forward, color);
}

COLORREF thumb_color(const Window& window, const ScrollBarState& bar) {
  if (bar.pressed == ScrollPart::thumb) return kThumbPressed;
  const bool has_focus = window.scroll_control && GetFocus() == window.handle;
  return has_focus ? kThumbFocused : kThumb;
}

}  // namespace

void draw_bar(const Window& window, ScrollAxis axis, HDC dc, const RECT& rect) {
  const ScrollBarState& bar = window.bar(axis);
  const ScrollLayout layout = bar_layout(window, axis);
  const BarPainter painter(dc, rect, axis);
  painter.fill({0, layout.line_forward.end}, kTrack);
  if (bar.pressed != ScrollPart::none && bar.pressed != ScrollPart::thumb) {
    painter.fill(layout.span_of(bar.pressed), kTrackPressed);
  }
  draw_arrow(painter, bar, ScrollPart::line_back, layout.line_back);
  draw_arrow(painter, bar, ScrollPart::line_forward, layout.line_forward);
  const ScrollSpan thumb{layout.thumb.begin + kThumbGap, layout.thumb.end - kThumbGap};
  if (thumb.length() <= 0) return;
  painter.fill_round(thumb, painter.thumb_across(), thumb_color(window, bar), kTrack);
}

void paint_bars(Window& window) {
  window.bars_due = false;
  if (window.layered.content || window.scroll_control) return;
  HDC dc = nullptr;
  const POINT client{window.client.left - window.frame.left, window.client.top - window.frame.top};
  for (const ScrollAxis axis : {ScrollAxis::horizontal, ScrollAxis::vertical}) {
    RECT rect = bar_rect(window, axis);
    if (IsRectEmpty(&rect)) continue;
    if (dc == nullptr) dc = open_window_dc(window, nullptr, Area::frame);
    if (dc == nullptr) return;
    OffsetRect(&rect, client.x, client.y);
    draw_bar(window, axis, dc, rect);
  }
  if (dc == nullptr) return;
  RECT corner = bar_corner(window);
  OffsetRect(&corner, client.x, client.y);
  fill_rect(dc, corner, kTrack);
  system()->gdi.close_dc(dc);
}

}  // namespace corvane::system
