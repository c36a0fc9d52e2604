// Text with GDI+.
#include <algorithm>
#include <cwchar>
#include <utility>

#include "corvane/platform/system/gdi/canvas.h"
#include "corvane/platform/system/gdi/gdi_impl.h"
#include "corvane/platform/system/gdi/gdiplus_state.h"
#include "corvane/platform/system/gdi/text_engine.h"

namespace corvane_system::Gdiplus {

using namespace corvane::system;

namespace {

double aligned(StringAlignment alignment, double start, double room, double needed) {
  if (alignment == StringAlignmentCenter) return start + (room - needed) / 2;
  if (alignment == StringAlignmentFar) return start + room - needed;
  return start;
}

struct TextBlock {
  std::shared_ptr<const TextLayout> layout;
  RectF box;  // a size of 0 means no limit
  const StringFormat& format;

  double top() const {
    return aligned(format.GetLineAlignment(), box.Y, box.Height, layout->height());
  }
  double left(int line) const {
    return aligned(format.GetAlignment(), box.X, box.Width, layout->line_width(line));
  }
  bool is_clipped() const {
    return ((format.GetFormatFlags() & StringFormatFlagsNoClip) == 0) && box.Width > 0 &&
           box.Height > 0;
  }
  // All cells.
  RectF extent() const {
    double first = left(0);
    for (int line = 1; line < layout->line_count(); ++line) first = std::min(first, left(line));
    return {static_cast<REAL>(first), static_cast<REAL>(top()), static_cast<REAL>(layout->width()),
            static_cast<REAL>(layout->height())};
  }
};

void draw_block(DeviceContext& dc, const cairo_matrix_t& matrix, const TextBlock& block,
                const Color& color) {
  const double margin = 2.0 * block.layout->metrics().height;
  Region reach = dc.clip();
  reach.intersect(mapped_bounds(matrix, block.extent(), margin));
  if (block.is_clipped()) reach.intersect(mapped_bounds(matrix, block.box, 1));
  const Canvas canvas(*dc.surface, std::move(reach));
  cairo_t* cairo = canvas.cairo();
  if (cairo == nullptr) return;
  cairo_transform(cairo, &matrix);
  if (block.is_clipped()) {
    cairo_rectangle(cairo, block.box.X, block.box.Y, block.box.Width, block.box.Height);
    cairo_clip(cairo);
  }
  set_source(cairo, color);
  for (int line = 0; line < block.layout->line_count(); ++line) {
    block.layout->draw_line(cairo, line, block.left(line),
                            block.top() + line * block.layout->metrics().height);
  }
}

}  // namespace

Font::Font(HDC, const LOGFONTW* description) {
  if (description == nullptr) return;
  description_ = *description;
  description_.lfFaceName[LF_FACESIZE - 1] = L'\0';
}

Status StringFormat::SetAlignment(StringAlignment alignment) {
  alignment_ = alignment;
  return Ok;
}

Status StringFormat::SetLineAlignment(StringAlignment alignment) {
  line_alignment_ = alignment;
  return Ok;
}

Status StringFormat::SetFormatFlags(INT flags) {
  flags_ = flags;
  return Ok;
}

Status Graphics::DrawString(const WCHAR* text, INT length, const Font* font, const RectF& layout,
                            const StringFormat* format, const Brush* brush) {
  const auto* solid = dynamic_cast<const SolidBrush*>(brush);
  if (text == nullptr || length < -1 || font == nullptr || solid == nullptr) {
    return state_->done(InvalidParameter);
  }
  const std::wstring_view shown(text,
                                length < 0 ? std::wcslen(text) : static_cast<std::size_t>(length));
  if (shown.empty()) return state_->done(Ok);
  return draw_softly(*state_, [&](DeviceContext& dc) {
    const StringFormat plain;
    const StringFormat& used = format ? *format : plain;
    TextRequest request{shown.substr(0, 65536)};
    const bool wraps = !(used.GetFormatFlags() & StringFormatFlagsNoWrap) && layout.Width > 0;
    if (wraps) request.wrap_width = static_cast<int>(std::min(layout.Width, 1e6f));
    TextEngine& engine = current_tables()->text_engine();
    const TextBlock block{engine.layout(font->description(), request), layout, used};
    draw_block(dc, state_->to_surface(dc), block, solid->color());
  });
}

}  // namespace corvane_system::Gdiplus
