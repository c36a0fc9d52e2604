#pragma once
// How a strip of pictures looks.
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

void draw_strip_background(HDC dc, const RECT& client);
void draw_strip_cell(HDC dc, const CStripLayout& layout, int index, const StripCell& cell);
void draw_strip_scroll(HDC dc, const CStripLayout& layout, bool held);
void draw_empty_strip(HDC dc, const RECT& client, const corvane::CString& text);

}  // namespace capture
