#pragma once
// Fonts and laid-out text. One engine belongs to one window system and its thread.
#include <cairo.h>

#include <list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "corvane/platform/system/gdi/gdi_api.h"

// The drawing library's own declarations, which only the sources include.
// NOLINTBEGIN(readability-identifier-naming)
typedef struct _PangoLayout PangoLayout;
typedef struct _PangoLayoutLine PangoLayoutLine;
typedef struct _PangoFontMap PangoFontMap;
typedef struct _PangoContext PangoContext;
typedef struct _PangoFontDescription PangoFontDescription;
// NOLINTEND(readability-identifier-naming)

namespace corvane::system {

// Sizes of a font in pixels. The cell is ascent + descent high.
struct FontMetrics {
  int height = 0;
  int ascent = 0;
  int descent = 0;
  int character_height = 0;  // of the em square
  int average_width = 0;
};

// What is to be laid out. Lines break at '\n', and at words beyond `wrap_width`.
struct TextRequest {
  std::wstring_view text;
  int wrap_width = -1;     // pixels; negative: no limit
  bool ellipsize = false;  // cut lines that are wider than wrap_width instead of breaking them
  int underlined = -1;     // index of one character of `text` that is underlined
};

// Laid-out text; valid as long as the engine that made it.
class TextLayout {
 public:
  TextLayout(PangoLayout* owned, const FontMetrics& metrics);
  ~TextLayout();
  TextLayout(const TextLayout&) = delete;
  TextLayout& operator=(const TextLayout&) = delete;

  const FontMetrics& metrics() const { return metrics_; }
  int line_count() const { return static_cast<int>(lines_.size()); }
  int line_width(int line) const;  // pixels
  int width() const;               // of the widest line
  int height() const { return line_count() * metrics_.height; }
  // Draws one line with the upper left corner of its cell at (x, y), in the context's source.
  void draw_line(cairo_t* cairo, int line, double x, double y) const;

 private:
  struct Line {
    PangoLayoutLine* line;  // of layout_
    int width;
  };
  PangoLayout* layout_;
  FontMetrics metrics_;
  std::vector<Line> lines_;
};

class TextEngine {
 public:
  TextEngine();
  ~TextEngine();
  TextEngine(const TextEngine&) = delete;
  TextEngine& operator=(const TextEngine&) = delete;

  FontMetrics metrics(const LOGFONTW& font);
  // The layouts used last are kept.
  std::shared_ptr<const TextLayout> layout(const LOGFONTW& font, const TextRequest& request);

 private:
  struct Font {
    PangoFontDescription* description = nullptr;
    FontMetrics metrics;
  };
  using Layouts = std::list<std::pair<std::wstring, std::shared_ptr<const TextLayout>>>;

  const Font& font(const LOGFONTW& font);
  Font load(const LOGFONTW& font);
  std::shared_ptr<const TextLayout> make(const LOGFONTW& font, const TextRequest& request);
  void forget_fonts();

  PangoFontMap* fonts_of_system_;
  PangoContext* context_;
  std::map<std::wstring, Font> fonts_;
  Layouts layouts_;  // last used first
  std::unordered_map<std::wstring, Layouts::iterator> layout_of_;
};

}  // namespace corvane::system
