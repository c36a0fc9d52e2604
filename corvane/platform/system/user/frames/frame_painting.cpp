#include "corvane/platform/system/user/frames/frame_painting.h"

#include <algorithm>

#include "corvane/platform/system/user/frames/frame_metrics.h"
#include "corvane/platform/system/user/frames/window_frame.h"
#include "corvane/platform/system/user/painting/painting.h"
#include "corvane/platform/system/user/scroll_bars/scroll_painting.h"

namespace corvane::system {
namespace {

constexpr int kSignSize = 9;  // pixels, of the sign in a box

struct FrameColors {
  int border;
  int outline;
  int text;
};

// Colour indices. A caption and the border around it are one surface.
FrameColors colors_of(const Window& window, const FrameLayout& layout) {
  const bool active = window.frame_active;
  if (!IsRectEmpty(&layout.caption())) {
    return active ? FrameColors{COLOR_ACTIVECAPTION, COLOR_WINDOWFRAME, COLOR_CAPTIONTEXT}
                  : FrameColors{COLOR_INACTIVECAPTION, COLOR_BTNSHADOW, COLOR_INACTIVECAPTIONTEXT};
  }
  if ((window.style & WS_THICKFRAME) != 0) {
    return {active ? COLOR_ACTIVEBORDER : COLOR_INACTIVEBORDER,
            active ? COLOR_WINDOWFRAME : COLOR_BTNSHADOW, COLOR_CAPTIONTEXT};
  }
  if ((window.ex_style & WS_EX_STATICEDGE) != 0) {
    return {COLOR_BTNFACE, COLOR_BTNSHADOW, COLOR_CAPTIONTEXT};
  }
  return {COLOR_BTNFACE, COLOR_WINDOWFRAME, COLOR_CAPTIONTEXT};
}

class FramePainter {
 public:
  FramePainter(HDC dc, const Window& window)
      : dc_(dc),
        window_(window),
        layout_(frame_layout(window, {0, 0, window.width(), window.height()})),
        colors_(colors_of(window, layout_)) {}

  void draw() const {
    RECT edge = layout_.outer();
    ring(edge, layout_.border(), colors_.border);
    if (layout_.border() > 0) ring(edge, kFlatBorder, colors_.outline);
    InflateRect(&edge, -layout_.border(), -layout_.border());
    if (!IsRectEmpty(&layout_.caption())) {
      draw_caption();
      edge.top = layout_.caption().bottom;
    }
    if (layout_.client_edge() == 0) return;
    ring(edge, kFlatBorder, COLOR_BTNSHADOW);
    InflateRect(&edge, -kFlatBorder, -kFlatBorder);
    ring(edge, layout_.client_edge() - kFlatBorder, COLOR_WINDOW);
  }

 private:
  void fill(const RECT& rect, int color) const { FillRect(dc_, &rect, GetSysColorBrush(color)); }

  // The outermost pixels of a rectangle.
  void ring(const RECT& rect, int thickness, int color) const {
    if (thickness <= 0) return;
    fill({rect.left, rect.top, rect.right, rect.top + thickness}, color);
    fill({rect.left, rect.bottom - thickness, rect.right, rect.bottom}, color);
    fill({rect.left, rect.top, rect.left + thickness, rect.bottom}, color);
    fill({rect.right - thickness, rect.top, rect.right, rect.bottom}, color);
  }

  void draw_caption() const {
    fill(layout_.caption(), colors_.border);
    RECT text = layout_.text();
    if (!IsRectEmpty(&text)) {
      HGDIOBJ former = SelectObject(dc_, GetStockObject(DEFAULT_GUI_FONT));
      SetBkMode(dc_, TRANSPARENT);
      SetTextColor(dc_, GetSysColor(colors_.text));
      DrawTextW(dc_, window_.text.c_str(), static_cast<int>(window_.text.size()), &text,
                DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
      SelectObject(dc_, former);
    }
    for (const int box : {HTCLOSE, HTMAXBUTTON, HTMINBUTTON}) draw_box(box);
  }

  void draw_box(int hit_code) const {
    const RECT box = layout_.box(hit_code);
    if (IsRectEmpty(&box)) return;
    const bool pressed = window_.pressed_box == hit_code;
    if (pressed) fill(box, COLOR_HIGHLIGHT);
    const int color = pressed ? COLOR_HIGHLIGHTTEXT : colors_.text;
    const int left = (box.left + box.right - kSignSize) / 2;
    const int top = (box.top + box.bottom - kSignSize) / 2;
    const RECT sign{left, top, left + kSignSize, top + kSignSize};
    if (hit_code == HTCLOSE) {
      draw_cross(sign, color);
    } else if ((window_.style & (hit_code == HTMAXBUTTON ? WS_MAXIMIZE : WS_MINIMIZE)) != 0) {
      draw_restore(sign, color);
    } else if (hit_code == HTMAXBUTTON) {
      draw_window(sign, color);
    } else {
      fill({sign.left, sign.bottom - 2, sign.right, sign.bottom}, color);
    }
  }

  // Two strokes, each two pixels wide along its row.
  void draw_cross(const RECT& sign, int color) const {
    for (int row = 0; row < kSignSize; ++row) {
      const int y = sign.top + row;
      const int down = sign.left + std::min(row, kSignSize - 2);
      const int up = sign.left + std::max(kSignSize - 2 - row, 0);
      fill({down, y, down + 2, y + 1}, color);
      fill({up, y, up + 2, y + 1}, color);
    }
  }

  void draw_window(const RECT& sign, int color) const {
    ring(sign, 1, color);
    fill({sign.left, sign.top, sign.right, sign.top + 2}, color);
  }

  // A window in front of the corner of another.
  void draw_restore(const RECT& sign, int color) const {
    constexpr int kStep = 2;
    fill({sign.left + kStep, sign.top, sign.right, sign.top + 1}, color);
    fill({sign.right - 1, sign.top, sign.right, sign.bottom - kStep}, color);
    draw_window({sign.left, sign.top + kStep, sign.right - kStep, sign.bottom}, color);
  }

  HDC dc_;
  const Window& window_;
  FrameLayout layout_;
  FrameColors colors_;
};

}  // namespace

void paint_frame(Window& window) {
  window.frame_due = true;
  if (!frame_pending(window)) return;
  window.frame_due = false;
  if (has_non_client_area(window) && !window.layered.content) {
    Region around(RECT{0, 0, window.width(), window.height()});
    RECT client = window.client;
    OffsetRect(&client, -window.frame.left, -window.frame.top);
    around.subtract(client);
    HDC dc = open_window_dc(window, &around, Area::frame);
    if (dc != nullptr) FramePainter(dc, window).draw();
    if (dc != nullptr) system()->gdi.close_dc(dc);
  }
  paint_bars(window);
}

}  // namespace corvane::system
