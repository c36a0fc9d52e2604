#pragma once
// How a strip of pictures looks.
#include "apps/capture/look.h"
#include "apps/capture/strip_layout.h"
#include "apps/capture/thumbnail.h"
#include "corvane/platform/framework/c_string.h"

namespace capture {

struct StripCell {
  const wchar_t* name = nullptr;
  const Thumbnail* thumbnail = nullptr;  // null: not loaded yet
  bool hovered = false;
  bool marked = false;
};

class StripPainter {
 public:
  // Both outlive it.
  StripPainter(const CLook& look, HDC dc) : look_(look), dc_(dc) {}

  void draw_background(const RECT& client) const;
  void draw_cell(const CStripLayout& layout, int index, const StripCell& cell) const;
  void draw_scroll(const CStripLayout& layout, bool held) const;
  void draw_empty(const RECT& client, const corvane::CString& text) const;

 private:
  void draw_line(const wchar_t* text, RECT place, Shade shade) const;
  void draw_placeholder(const RECT& place, bool broken) const;

  const CLook& look_;
  HDC dc_;
};

}  // namespace capture
