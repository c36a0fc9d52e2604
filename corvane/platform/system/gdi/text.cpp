// DrawTextW, TextOutW, ExtTextOutW and the measures of text.
#include <algorithm>
#include <cwchar>
#include <string>
#include <string_view>

#include "corvane/platform/system/gdi/canvas.h"
#include "corvane/platform/system/gdi/gdi_impl.h"
#include "corvane/platform/system/gdi/text_engine.h"
#include "corvane/platform/system/gdi/text_prefix.h"

namespace corvane_system {

using namespace corvane::system;

namespace {

constexpr std::size_t kMaxTextLength = 65536;  // characters; what comes after is not drawn
constexpr UINT kMaxRun = 8192;                 // documented limit of ExtTextOutW

const LOGFONTW& font_of(const DeviceContext& dc) {
  return current_tables()->get<FontObject>(dc.state.font)->description;
}

TextEngine& engine() { return current_tables()->text_engine(); }

void set_source(cairo_t* cairo, Pixel pixel) {
  cairo_set_source_rgb(cairo, ((pixel >> 16) & 0xFF) / 255.0, ((pixel >> 8) & 0xFF) / 255.0,
                       (pixel & 0xFF) / 255.0);
}

// One line of a layout, where its cell is, surface coordinates.
struct PlacedLine {
  int line;
  POINT at;
};

// Where glyphs may reach beyond their cell: italics, accents, fallback fonts.
RECT reach_of(const RECT& cell) {
  const LONG height = cell.bottom - cell.top;
  return {cell.left - height, cell.top - height, cell.right + height, cell.bottom + height};
}

void draw_line(DeviceContext& dc, const TextLayout& layout, const PlacedLine& placed,
               const Region& clip) {
  const RECT cell{placed.at.x, placed.at.y, offset_by(placed.at.x, layout.line_width(placed.line)),
                  offset_by(placed.at.y, layout.metrics().height)};
  if (dc.state.back_mode == OPAQUE) {
    Region background(clip);
    background.intersect(cell);
    for (const RECT& piece : background.rects()) {
      dc.surface->fill(piece, dc.pixel(dc.state.back_color));
    }
    dc.surface->mark(background);
  }
  Region area(clip);
  area.intersect(reach_of(cell));
  const Canvas canvas(*dc.surface, std::move(area));
  if (canvas.cairo() == nullptr) return;
  set_source(canvas.cairo(), dc.pixel(dc.state.text_color));
  layout.draw_line(canvas.cairo(), placed.line, placed.at.x, placed.at.y);
}

// Lines break at "\r\n", '\r' and '\n', or nowhere.
std::wstring with_line_breaks(std::wstring_view text, bool single_line) {
  std::wstring result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool end_of_line = text[at] == L'\r' || text[at] == L'\n';
    if (!end_of_line) {
      result.push_back(text[at]);
    } else if (!single_line && !(text[at] == L'\n' && at > 0 && text[at - 1] == L'\r')) {
      result.push_back(L'\n');
    }
  }
  return result;
}

std::shared_ptr<const TextLayout> lay_out(const DeviceContext& dc, std::wstring_view text,
                                          const RECT& rect, UINT format) {
  PrefixedText prefixed{std::wstring(text), -1};
  if (!(format & DT_NOPREFIX)) prefixed = without_prefixes(text);
  const bool single_line = (format & DT_SINGLELINE) != 0;
  const std::wstring shown = with_line_breaks(prefixed.text, single_line);
  TextRequest request{shown};
  if (shown.size() == prefixed.text.size()) request.underlined = prefixed.underlined;
  request.ellipsize = ((format & DT_END_ELLIPSIS) != 0u) && ((format & DT_CALCRECT) == 0u);
  if (request.ellipsize || ((format & DT_WORDBREAK) && !single_line)) {
    request.wrap_width = std::max(0, distance(rect.left, rect.right));
  }
  return engine().layout(font_of(dc), request);
}

int line_left(const RECT& rect, int width, UINT format) {
  if (format & DT_CENTER) {
    return offset_by(rect.left, (distance(rect.left, rect.right) - width) / 2);
  }
  if (format & DT_RIGHT) return offset_by(rect.right, -width);
  return rect.left;
}

int first_top(const RECT& rect, int height, UINT format) {
  if (!(format & DT_SINGLELINE)) return rect.top;
  if (format & DT_VCENTER) {
    return offset_by(rect.top, distance(rect.top, rect.bottom) / 2 - height / 2);
  }
  if (format & DT_BOTTOM) return offset_by(rect.bottom, -height);
  return rect.top;
}

void draw_layout(DeviceContext& dc, const TextLayout& layout, const RECT& rect, UINT format,
                 int top) {
  Region clip = dc.clip();
  if (!(format & DT_NOCLIP)) clip.intersect(dc.to_surface(rect));
  const LONG behind = clip.bounds().bottom + layout.metrics().height;
  for (int line = 0; line < layout.line_count(); ++line) {
    const int y = offset_by(top, line * layout.metrics().height);
    if (dc.to_surface(0, y).y > behind) break;
    const int x = line_left(rect, layout.line_width(line), format);
    draw_line(dc, layout, {line, dc.to_surface(x, y)}, clip);
  }
}

// The text that a pointer and a length name; length -1: up to the terminating zero.
bool take_text(LPCWSTR text, int length, std::wstring_view* taken) {
  if (length < -1 || (text == nullptr && length != 0)) return false;
  if (length != 0) {
    *taken = {text, length < 0 ? std::wcslen(text) : static_cast<std::size_t>(length)};
  }
  *taken = taken->substr(0, kMaxTextLength);
  return true;
}

void draw_run(DeviceContext& dc, int x, int y, std::wstring_view text, const Region& clip) {
  const auto layout = engine().layout(font_of(dc), {with_line_breaks(text, true)});
  draw_line(dc, *layout, {0, dc.to_surface(x, y)}, clip);
}

void draw_spaced(DeviceContext& dc, int x, int y, std::wstring_view text, const INT* spacing,
                 const Region& clip) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    draw_run(dc, x, y, text.substr(at, 1), clip);
    x = offset_by(x, spacing[at]);
  }
}

}  // namespace

int DrawTextW(HDC dc, LPCWSTR text, int length, LPRECT rect, UINT format) {
  DeviceContext* context = find_dc(dc);
  std::wstring_view shown;
  if (context == nullptr || rect == nullptr || !take_text(text, length, &shown)) return 0;
  return softly(0, [&] {
    const auto layout = lay_out(*context, shown, *rect, format);
    const int height = layout->height();
    const int top = first_top(*rect, height, format);
    if (format & DT_CALCRECT) {
      rect->right = offset_by(rect->left, shown.empty() ? 0 : layout->width());
      rect->bottom = offset_by(rect->top, shown.empty() && !(format & DT_SINGLELINE) ? 0 : height);
      return height;
    }
    if (!shown.empty()) draw_layout(*context, *layout, *rect, format, top);
    return distance(rect->top, offset_by(top, height));
  });
}

BOOL ExtTextOutW(HDC dc, int x, int y, UINT options, const RECT* rect, LPCWSTR text, UINT length,
                 const INT* spacing) {
  DeviceContext* context = find_dc(dc);
  if (context == nullptr || (text == nullptr && length > 0) || length > kMaxRun) return FALSE;
  return softly(FALSE, [&] {
    Region clip = context->clip();
    if (rect != nullptr) {
      const std::optional<RECT> area = ordered(context->to_surface(*rect));
      if (area && (options & ETO_OPAQUE)) {
        context->fill(*area, context->pixel(context->state.back_color));
      }
      if (options & ETO_CLIPPED) clip.intersect(area ? *area : RECT{0, 0, 0, 0});
    }
    if (length == 0) return TRUE;
    const std::wstring_view shown(text, length);
    if (spacing) {
      draw_spaced(*context, x, y, shown, spacing, clip);
    } else {
      draw_run(*context, x, y, shown, clip);
    }
    return TRUE;
  });
}

BOOL TextOutW(HDC dc, int x, int y, LPCWSTR text, int length) {
  if (length < 0) return FALSE;
  return ExtTextOutW(dc, x, y, 0, nullptr, text, static_cast<UINT>(length), nullptr);
}

BOOL GetTextExtentPoint32W(HDC dc, LPCWSTR text, int length, LPSIZE size) {
  const DeviceContext* context = find_dc(dc);
  std::wstring_view measured;
  if (context == nullptr || size == nullptr || length < 0 || !take_text(text, length, &measured)) {
    return FALSE;
  }
  return softly(FALSE, [&] {
    const auto layout = engine().layout(font_of(*context), {with_line_breaks(measured, true)});
    *size = {measured.empty() ? 0 : layout->width(), layout->metrics().height};
    return TRUE;
  });
}

BOOL GetTextMetricsW(HDC dc, TEXTMETRICW* metrics) {
  const DeviceContext* context = find_dc(dc);
  if (context == nullptr || metrics == nullptr) return FALSE;
  const LOGFONTW& font = font_of(*context);
  const FontMetrics measured = engine().metrics(font);
  *metrics = {};
  metrics->tmHeight = measured.height;
  metrics->tmAscent = measured.ascent;
  metrics->tmDescent = measured.descent;
  metrics->tmInternalLeading = measured.height - measured.character_height;
  metrics->tmAveCharWidth = measured.average_width;
  metrics->tmMaxCharWidth = measured.character_height;
  metrics->tmWeight = font.lfWeight == 0 ? FW_NORMAL : font.lfWeight;
  return TRUE;
}

}  // namespace corvane_system
