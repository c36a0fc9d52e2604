#pragma once
// The arithmetic of a scroll bar: range, page and position, and where along the bar its parts lie.
// Knows no window and no axis: lengths are pixels along the bar, from its upper or left end.
#include "corvane/platform/system/user/constants.h"
#include "corvane/platform/system/user/user_api.h"

namespace corvane::system {

struct ScrollModel {
  int minimum = 0;
  int maximum = 100;
  UINT page = 0;
  int position = 0;

  // Takes what fMask names. A range upside down becomes 0..0; page and position are limited.
  void change(const SCROLLINFO& wanted);
  // The last position: the page then ends at the maximum.
  int limit() const;
  // Whether there is anywhere to scroll to.
  bool needed() const { return limit() > minimum; }
};

enum class ScrollPart { none, line_back, page_back, thumb, page_forward, line_forward };

struct ScrollSpan {
  int begin = 0;
  int end = 0;
  int length() const { return end - begin; }
  bool holds(int place) const { return place >= begin && place < end; }
};

// Where the parts of a bar lie. Arrows shrink when the bar is shorter than two of them; a trough
// that is too short has no thumb (an empty span).
struct ScrollLayout {
  ScrollSpan line_back;
  ScrollSpan trough;
  ScrollSpan thumb;
  ScrollSpan line_forward;

  ScrollPart part_at(int place) const;
  ScrollSpan span_of(ScrollPart part) const;
};

// The layout of a bar whose thumb stands at the model's position. `thickness` is the bar's width,
// also the length of an arrow and the least length of a thumb.
ScrollLayout scroll_layout(const ScrollModel& model, int length, int thickness);
// The same with the thumb's upper end as near to `thumb_begin` as the trough lets it.
ScrollLayout scroll_layout_dragged(const ScrollModel& model, int length, int thickness,
                                   int thumb_begin);
// The position that a thumb standing there means.
int position_of_thumb(const ScrollModel& model, const ScrollLayout& layout);

}  // namespace corvane::system
