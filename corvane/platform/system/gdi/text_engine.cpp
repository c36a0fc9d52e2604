#include "corvane/platform/system/gdi/text_engine.h"

#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "corvane/platform/system/gdi/font_faces.h"
#include "corvane/platform/system/gdi/text_utf8.h"

namespace corvane::system {

namespace {

constexpr std::size_t kKeptLayouts = 256;
constexpr std::size_t kKeptFonts = 64;
constexpr LONG kDefaultHeight = 16;
constexpr LONG kMaxHeight = 4096;
// Installed faces carry line gaps of up to half an em in their ascent and descent; a cell takes
// what letters need, so that a font of a given height is as large as the platform draws it.
constexpr double kMaxAscent = 0.93;  // of an em
constexpr double kMaxDescent = 0.24;

std::wstring key_of(const LOGFONTW& font) {
  std::wstring key = std::to_wstring(font.lfHeight) + L'/' + std::to_wstring(font.lfWeight) + L'/';
  key += font.lfItalic ? L'i' : L'-';
  key += font.lfUnderline ? L'u' : L'-';
  key += font.lfStrikeOut ? L's' : L'-';
  return key + font.lfFaceName;
}

std::wstring key_of(const LOGFONTW& font, const TextRequest& request) {
  std::wstring key = key_of(font) + L'\n' + std::to_wstring(request.wrap_width) + L'/';
  key += std::to_wstring(request.underlined) + (request.ellipsize ? L"e" : L"-");
  return key.append(request.text);
}

PangoFontDescription* describe(const LOGFONTW& font) {
  PangoFontDescription* description = pango_font_description_new();
  pango_font_description_set_family(description, font_families(font.lfFaceName).c_str());
  const LONG weight = font.lfWeight == 0 ? FW_NORMAL : std::clamp(font.lfWeight, 100, 1000);
  pango_font_description_set_weight(description, static_cast<PangoWeight>(weight));
  pango_font_description_set_style(description,
                                   font.lfItalic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
  return description;
}

// In ems.
struct Proportions {
  double ascent = kMaxAscent;
  double descent = kMaxDescent;
  double average_width = 0.5;
};

Proportions measure(PangoContext* context, const PangoFontDescription* description) {
  Proportions proportions;
  constexpr int kMeasured = 1000;  // pixels
  PangoFontDescription* large = pango_font_description_copy(description);
  pango_font_description_set_absolute_size(large, kMeasured * PANGO_SCALE);
  if (PangoFont* font = pango_context_load_font(context, large)) {
    constexpr double kEm = double{kMeasured} * PANGO_SCALE;
    PangoFontMetrics* metrics = pango_font_get_metrics(font, nullptr);
    proportions.ascent = std::min(kMaxAscent, pango_font_metrics_get_ascent(metrics) / kEm);
    proportions.descent = std::min(kMaxDescent, pango_font_metrics_get_descent(metrics) / kEm);
    proportions.average_width = pango_font_metrics_get_approximate_char_width(metrics) / kEm;
    pango_font_metrics_unref(metrics);
    g_object_unref(font);
  }
  pango_font_description_free(large);
  return proportions;
}

PangoAttribute* over(PangoAttribute* attribute, std::size_t begin, std::size_t end) {
  attribute->start_index = static_cast<guint>(begin);
  attribute->end_index = static_cast<guint>(end);
  return attribute;
}

PangoAttrList* attributes_of(const LOGFONTW& font, const TextRequest& request) {
  PangoAttrList* list = pango_attr_list_new();
  if (font.lfUnderline) {
    pango_attr_list_insert(list, pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
  }
  if (font.lfStrikeOut) pango_attr_list_insert(list, pango_attr_strikethrough_new(TRUE));
  if (request.underlined >= 0 &&
      static_cast<std::size_t>(request.underlined) < request.text.size()) {
    const auto index = static_cast<std::size_t>(request.underlined);
    const std::size_t begin = to_utf8(request.text.substr(0, index)).size();
    const std::size_t end = to_utf8(request.text.substr(0, index + 1)).size();
    pango_attr_list_insert(list,
                           over(pango_attr_underline_new(PANGO_UNDERLINE_SINGLE), begin, end));
  }
  return list;
}

}  // namespace

TextLayout::TextLayout(PangoLayout* owned, const FontMetrics& metrics)
    : layout_(owned), metrics_(metrics) {
  for (GSList* item = pango_layout_get_lines_readonly(owned); item != nullptr; item = item->next) {
    auto* line = static_cast<PangoLayoutLine*>(item->data);
    PangoRectangle logical;
    pango_layout_line_get_extents(line, nullptr, &logical);
    lines_.push_back({line, PANGO_PIXELS_CEIL(logical.width)});
  }
}

TextLayout::~TextLayout() { g_object_unref(layout_); }

int TextLayout::line_width(int line) const { return lines_[static_cast<std::size_t>(line)].width; }

int TextLayout::width() const {
  int widest = 0;
  for (const Line& line : lines_) widest = std::max(widest, line.width);
  return widest;
}

void TextLayout::draw_line(cairo_t* cairo, int line, double x, double y) const {
  cairo_move_to(cairo, x, y + metrics_.ascent);
  pango_cairo_show_layout_line(cairo, lines_[static_cast<std::size_t>(line)].line);
}

TextEngine::TextEngine()
    : fonts_of_system_(pango_cairo_font_map_new()),
      context_(pango_font_map_create_context(fonts_of_system_)) {
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_SLIGHT);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_ON);
  pango_cairo_context_set_font_options(context_, options);
  cairo_font_options_destroy(options);
  pango_context_set_language(context_, pango_language_from_string("zh-cn"));
}

TextEngine::~TextEngine() {
  layout_of_.clear();
  layouts_.clear();
  forget_fonts();
  g_object_unref(context_);
  g_object_unref(fonts_of_system_);
}

void TextEngine::forget_fonts() {
  for (auto& [key, font] : fonts_) pango_font_description_free(font.description);
  fonts_.clear();
}

TextEngine::Font TextEngine::load(const LOGFONTW& font) {
  Font loaded;
  loaded.description = describe(font);
  const Proportions proportions = measure(context_, loaded.description);
  const LONG asked = std::clamp(font.lfHeight, -kMaxHeight, kMaxHeight);
  const double cell = proportions.ascent + proportions.descent;
  double em = asked < 0 ? -asked : (asked == 0 ? kDefaultHeight : asked) / cell;
  em = std::max(em, 1.0);
  pango_font_description_set_absolute_size(loaded.description, em * PANGO_SCALE);
  FontMetrics& metrics = loaded.metrics;
  metrics.height = static_cast<int>(std::lround(em * cell));
  if (asked > 0) metrics.height = asked;
  metrics.ascent = std::min(
      metrics.height, static_cast<int>(std::lround(metrics.height * proportions.ascent / cell)));
  metrics.descent = metrics.height - metrics.ascent;
  metrics.character_height = std::min(metrics.height, static_cast<int>(std::lround(em)));
  metrics.average_width =
      std::max(1, static_cast<int>(std::lround(em * proportions.average_width)));
  return loaded;
}

const TextEngine::Font& TextEngine::font(const LOGFONTW& font) {
  const std::wstring key = key_of(font);
  const auto known = fonts_.find(key);
  if (known != fonts_.end()) return known->second;
  if (fonts_.size() >= kKeptFonts) forget_fonts();
  return fonts_.emplace(key, load(font)).first->second;
}

FontMetrics TextEngine::metrics(const LOGFONTW& font) { return this->font(font).metrics; }

std::shared_ptr<const TextLayout> TextEngine::layout(const LOGFONTW& font,
                                                     const TextRequest& request) {
  std::wstring key = key_of(font, request);
  const auto known = layout_of_.find(key);
  if (known != layout_of_.end()) {
    layouts_.splice(layouts_.begin(), layouts_, known->second);
    return layouts_.front().second;
  }
  layouts_.emplace_front(key, make(font, request));
  layout_of_.emplace(std::move(key), layouts_.begin());
  if (layouts_.size() > kKeptLayouts) {
    layout_of_.erase(layouts_.back().first);
    layouts_.pop_back();
  }
  return layouts_.front().second;
}

std::shared_ptr<const TextLayout> TextEngine::make(const LOGFONTW& font,
                                                   const TextRequest& request) {
  constexpr int kMaxWidth = 1 << 20;  // pixels; in the library's units it still fits
  const Font& used = this->font(font);
  PangoLayout* layout = pango_layout_new(context_);
  pango_layout_set_font_description(layout, used.description);
  const std::string text = to_utf8(request.text);
  pango_layout_set_text(layout, text.data(), static_cast<int>(text.size()));
  PangoAttrList* attributes = attributes_of(font, request);
  pango_layout_set_attributes(layout, attributes);
  pango_attr_list_unref(attributes);
  if (request.wrap_width >= 0) {
    pango_layout_set_width(layout, std::min(request.wrap_width, kMaxWidth) * PANGO_SCALE);
  }
  pango_layout_set_wrap(layout, PANGO_WRAP_WORD);
  if (request.ellipsize) pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_END);
  return std::make_shared<const TextLayout>(layout, used.metrics);
}

}  // namespace corvane::system
